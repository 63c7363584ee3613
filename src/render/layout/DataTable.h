#pragma once

#include <cstddef>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// The positions of the rows and columns of a data table. The first row has the categories, and a row for
/// each series follows. The first column has the names of the series.
struct TableLayout {
  std::vector<double> columns;  ///< The edges of the columns from left to right.
  std::vector<double> rows;     ///< The edges of the rows from top to bottom.
  std::size_t leftOut = 0;      ///< The number of series for which there is no space.
  bool isTooNarrow = false;     ///< Whether the columns are too narrow for any text.

  /// The width of the column with the names of the series, in points.
  double NamesWidth() const { return columns.size() < 2 ? 0 : columns[1] - columns[0]; }
  /// The height of the table in points.
  double Height() const { return rows.empty() ? 0 : rows.back() - rows.front(); }
};

/// Lays out the data table of a chart below a plot area.
TableLayout LayOutTable(const ChartModel& chart, const Rect& bounds, const Rect& plot,
                        const TextMeasure& measure);
/// Draws the lines, the keys and the texts of a data table.
void DrawTable(Canvas& canvas, const ChartModel& chart, const TableLayout& layout);

}  // namespace plotsmith::render
