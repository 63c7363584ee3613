#pragma once

#include <string>
#include <vector>

#include "host/excel/Excel.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// A chart to draw, with its label: its id, "Sheet1!Chart 2", or the name of its chart sheet.
struct ChartToDraw {
  std::string label;
  excel::Ref<excel::Chart> chart;  ///< Nothing if the workbook has only a definition.
};

/// Returns all loaded charts in the order of their definitions.
std::vector<ChartToDraw> LoadedChartsToDraw();

/// Returns the charts with the given names, each once. A name is the id or the name of a chart of Plotsmith,
/// the sheet and shape of any chart, or a chart sheet. Throws CommandError if a name means no chart or
/// several. `path` is the path of the workbook for messages.
std::vector<ChartToDraw> NamedChartsToDraw(xlsx::Workbook& book, const std::string& path,
                                           const std::vector<std::string>& names);

/// Returns the names of all charts that aren't Plotsmith's, in the format of NamedChartsToDraw.
std::vector<std::string> OtherCharts(xlsx::Workbook& book);

}  // namespace plotsmith::cli
