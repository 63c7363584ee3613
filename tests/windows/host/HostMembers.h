#pragma once

#include "tests/windows/host/Dress.h"

namespace plotsmith::dress {

/// Adds what scripts ask of the host beside Excel's members: HostMembers.cpp lists it.
void AddHostMembers(Table<excel::Application>& table);

/// A new host in its dress, with one reference that belongs to the caller.
IDispatch* NewApplication();

}  // namespace plotsmith::dress
