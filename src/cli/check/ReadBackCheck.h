#pragma once

#include <map>
#include <string>
#include <vector>

#include "cli/check/DefinitionCheck.h"
#include "cli/check/Finding.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Whether axis titles are compared, or were just renamed with their columns.
enum class AxisTitles { kCompared, kRenamed };

/// Finds the settings in which definitions differ from their drawn charts, by chart id; the chart takes
/// precedence. A chart is compared only if its definition was changed after the chart. The definitions must
/// be loaded, so that the charts were read back into `colCharts`; `rows` were read before that.
std::map<std::string, Findings> CheckReadBack(xlsx::Workbook& book,
                                              const std::vector<CheckedDefinition>& rows,
                                              AxisTitles axisTitles);

}  // namespace plotsmith::cli
