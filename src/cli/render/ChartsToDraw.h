#pragma once

#include <string>
#include <vector>

#include "cli/ChartLookup.h"
#include "host/excel/Excel.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// A chart to draw.
struct ChartToDraw {
  std::string label;               ///< The id, "Sheet1!Chart 2", or the name of the chart sheet.
  excel::Ref<excel::Chart> chart;  ///< Nothing if the workbook has only a definition.
};

/// Returns charts of Plotsmith for drawing, with their ids as labels.
std::vector<ChartToDraw> AllToDraw(const std::vector<DefinedChart>& defined);

/// Returns the charts with the given names, each once. A name is the id or the name of a chart of Plotsmith,
/// the sheet and shape of any chart, or a chart sheet. Throws CommandError if a name matches no chart or
/// several charts. `path` is the path of the workbook for messages.
std::vector<ChartToDraw> NamedChartsToDraw(xlsx::Workbook& book, const std::vector<DefinedChart>& defined,
                                           const std::string& path, const std::vector<std::string>& names);

/// Returns the names of all charts that aren't among `defined`, in the format of NamedChartsToDraw.
std::vector<std::string> OtherCharts(xlsx::Workbook& book, const std::vector<DefinedChart>& defined);

}  // namespace plotsmith::cli
