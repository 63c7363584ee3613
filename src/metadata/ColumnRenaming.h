#pragma once

#include <string>
#include <vector>

/// Module PSFunctions: the names of columns in definitions.
namespace plotsmith {

/// Carries a renaming of columns of one table into all definitions and saves them. The names are taken in
/// order, and a new name is visible to those behind it.
void UpdateChartColumnNames(const std::string& sTableRangeName,
                            const std::vector<std::string>& aOldColumnNames,
                            const std::vector<std::string>& aNewColumnNames);

}  // namespace plotsmith
