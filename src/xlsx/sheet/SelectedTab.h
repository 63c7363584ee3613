#pragma once

#include <string>
#include <vector>

namespace plotsmith::xlsx {

class Package;

/// Selects the tab of one sheet only. `sheets` are the parts of all sheets. If several tabs were selected,
/// Excel would open the sheets as a group, and typing into one would change all of them. Sheets that need no
/// change keep their bytes. If another selected tab can't be changed, because its sheet is too large or
/// damaged, returns false and changes nothing.
bool SelectOnlyTab(Package& package, const std::vector<std::string>& sheets, const std::string& selected);

}  // namespace plotsmith::xlsx
