#pragma once

#include <map>
#include <string>
#include <vector>

#include "cli/check/DefinitionCheck.h"
#include "cli/check/Finding.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Whether axis titles count as differences, or have just been given the new names of columns.
enum class AxisTitles { kCompared, kRenamed };

/// What the definitions of rows say otherwise than their drawn charts, which count, by the ids of the charts.
/// A chart is only compared where it was the definition that was changed last. It wants the definitions
/// loaded, which has read the charts back into `colCharts`; `rows` were read before that.
std::map<std::string, Findings> CheckReadBack(xlsx::Workbook& book,
                                              const std::vector<CheckedDefinition>& rows,
                                              AxisTitles axisTitles);

}  // namespace plotsmith::cli
