#pragma once

#include <optional>
#include <vector>

#include "render/axes/TickLabels.h"
#include "render/layout/DataTable.h"
#include "render/layout/LegendLayout.h"
#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// A title with its position.
struct PlacedTitle {
  /// The text, broken into lines.
  TextBlock block;
  Rect box;  ///< The rectangle of the text with its padding.
};

/// The elements beside an axis. The title and the display units are absent if the axis has none.
struct AxisLayout {
  /// The tick labels.
  TickLabels labels;
  /// The title of the axis, and the label of its display units.
  std::optional<PlacedTitle> title, units;
};

/// The positions of the elements of a chart. The title, legend and data table are absent if the chart has
/// none.
struct ChartLayout {
  /// The title, within the chart area.
  std::optional<PlacedTitle> title;
  /// The legend, with the positions of its entries.
  std::optional<LegendLayout> legend;
  /// The data table below the plot area.
  std::optional<TableLayout> table;
  std::vector<AxisLayout> axes;  ///< One for each axis of the chart.
  Rect outer;                    ///< The plot area with its tick labels.
  Rect plot;                     ///< The rectangle between the axes.
};

/// Lays out a chart in the rectangle `bounds`. An automatic major unit of a value axis is
/// increased until there is enough space for the labels.
ChartLayout LayOutChart(ChartModel& chart, const Rect& bounds, const TextMeasure& measure);

}  // namespace plotsmith::render
