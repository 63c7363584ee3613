#pragma once

#include "tests/windows/host/Dress.h"

namespace plotsmith::dress {

/// Adds what scripts ask of the host beside Excel's members: HostMembers.cpp lists it.
void AddHostMembers(Table<excel::Application>& table);

/// Ways to call Excel's members, such as "Axis.HasTitle read".
std::vector<std::string> AllWays();
/// Those of them that have not been called yet.
std::vector<std::string> WaysNotCalled();

/// A host in its dress, with one reference that belongs to the caller.
IDispatch* NewApplication(HostPtr host = std::make_shared<Host>());

}  // namespace plotsmith::dress
