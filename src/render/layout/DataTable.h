#pragma once

#include <cstddef>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Where the rows and columns of a data table are. The first row has the categories, and a row for each
/// series follows. The first column, in front of the categories, has the names of the series.
struct TableLayout {
  std::vector<double> columns;  ///< edges from left to right: that of the names, and those of the categories
  std::vector<double> rows;     ///< edges from top to bottom
  std::size_t leftOut = 0;      ///< series for which there is no room
  bool isTooNarrow = false;     ///< no text has room in a column

  double NamesWidth() const { return columns.size() < 2 ? 0 : columns[1] - columns[0]; }
  double Height() const { return rows.empty() ? 0 : rows.back() - rows.front(); }
};

/// Lays out the data table of a chart below a plot area.
TableLayout LayOutTable(const ChartModel& chart, const Rect& bounds, const Rect& plot,
                        const TextMeasure& measure);
void DrawTable(Canvas& canvas, const ChartModel& chart, const TableLayout& layout);

}  // namespace plotsmith::render
