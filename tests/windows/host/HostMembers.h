#pragma once

#include "tests/windows/host/Automation.h"

namespace plotsmith::automation {

/// Adds the host's members for scripts, which HostMembers.cpp lists.
void AddHostMembers(Table<excel::Application>& table);

/// Returns the ways to call Excel's members, such as "Axis.HasTitle read".
std::vector<std::string> AllWays();
/// Returns those of them that have not been called yet.
std::vector<std::string> WaysNotCalled();

/// Makes a host as IDispatch with one reference, which the caller owns.
IDispatch* NewApplication(HostPtr host = std::make_shared<Host>());

}  // namespace plotsmith::automation
