#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/excel/Excel.h"

namespace plotsmith::xlsx {
class Workbook;
}

namespace plotsmith::cli {

/// The attributes `id` and `name` of a definition.
struct ChartName {
  /// The id, and the name in lists.
  std::string id, name;
};
/// The id and the name of each chart.
using ChartNames = std::vector<ChartName>;

/// Returns the loaded charts in their order. `colCharts` must be set.
ChartNames LoadedCharts();

/// A chart of Plotsmith, with the id and the name in its definition.
struct DefinedChart {
  /// The attributes `id` and `name` of the definition.
  std::string id, name;
  excel::Ref<excel::Chart> chart;  ///< The chart; Nothing if no sheet has it.
};

/// Returns the charts that have a definition, in the order of their definitions. They are the charts that a
/// load would find, but they aren't read back, because a picture shows the chart and not its definition.
/// `oWorkbook` must be set, and `book` is that workbook.
std::vector<DefinedChart> DefinedCharts(xlsx::Workbook& book);

/// Returns the indices of the charts with an id or, ignoring case, a name. An id takes precedence, because a
/// name can equal the id of another chart. Several charts can have the same name, since a modified chart can
/// take any name.
std::vector<std::size_t> FindCharts(const ChartNames& charts, const std::string& idOrName);
/// Returns a sentence, without a full stop, that lists the charts with the same name.
std::string SeveralCharts(const ChartNames& charts, const std::vector<std::size_t>& places,
                          const std::string& name);

}  // namespace plotsmith::cli
