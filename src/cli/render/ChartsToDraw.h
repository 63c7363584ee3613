#pragma once

#include <string>
#include <vector>

#include "host/excel/Excel.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// A chart that is to be drawn, and what it is called: its id, "Sheet1!Chart 2", or the name of its chart
/// sheet.
struct ChartToDraw {
  std::string label;
  excel::Ref<excel::Chart> chart;  ///< Nothing where the workbook has a definition only
};

/// All charts that are loaded, in the order of their definitions.
std::vector<ChartToDraw> LoadedChartsToDraw();

/// Those that the names mean, each once: an id or a name of a chart of Plotsmith's, or for any chart its
/// sheet and its shape, or its chart sheet. A CommandError for a name that means none or several. `path` is
/// the workbook's for messages.
std::vector<ChartToDraw> NamedChartsToDraw(xlsx::Workbook& book, const std::string& path,
                                           const std::vector<std::string>& names);

/// The names of all charts that Plotsmith doesn't keep, as NamedChartsToDraw takes them.
std::vector<std::string> OtherCharts(xlsx::Workbook& book);

}  // namespace plotsmith::cli
