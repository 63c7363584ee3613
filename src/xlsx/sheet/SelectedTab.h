#pragma once

#include <string>
#include <vector>

namespace plotsmith::xlsx {

class Package;

/// Leaves one sheet's tab selected, given the parts of all sheets. Those that are selected as well would open
/// as a group with it, in which what a user types goes into all. Sheets that are right already keep their
/// bytes.
void SelectOnlyTab(Package& package, const std::vector<std::string>& sheets, const std::string& selected);

}  // namespace plotsmith::xlsx
