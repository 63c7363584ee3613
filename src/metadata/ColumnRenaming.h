#pragma once

#include <string>
#include <vector>

/// Module PSFunctions: renaming columns in definitions.
namespace plotsmith {

/// Renames columns of one table in all definitions and saves them. The names are processed in order, so a
/// column that was renamed can be renamed again by a later pair.
void UpdateChartColumnNames(const std::string& sTableRangeName,
                            const std::vector<std::string>& aOldColumnNames,
                            const std::vector<std::string>& aNewColumnNames);

}  // namespace plotsmith
