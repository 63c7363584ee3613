#pragma once

#include <string>
#include <vector>

namespace plotsmith::xlsx {

class Package;

/// Selects the tab of one sheet only. `sheets` are the parts of all sheets. If several tabs were selected,
/// Excel would open them as a group, and typing would change all of them. Sheets that need no change keep
/// their bytes.
void SelectOnlyTab(Package& package, const std::vector<std::string>& sheets, const std::string& selected);

}  // namespace plotsmith::xlsx
