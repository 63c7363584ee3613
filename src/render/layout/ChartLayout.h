#pragma once

#include <optional>
#include <vector>

#include "render/axes/TickLabels.h"
#include "render/layout/DataTable.h"
#include "render/layout/LegendLayout.h"
#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// A title with its place.
struct PlacedTitle {
  TextBlock block;
  Rect box;  ///< the text with its padding
};

/// What is laid out beside an axis.
struct AxisLayout {
  TickLabels labels;
  std::optional<PlacedTitle> title, units;
};

/// Where the elements of a chart are.
struct ChartLayout {
  std::optional<PlacedTitle> title;
  std::optional<LegendLayout> legend;
  std::optional<TableLayout> table;
  std::vector<AxisLayout> axes;  ///< one for each of the chart
  Rect outer;                    ///< the plot area with its tick labels
  Rect plot;                     ///< the rectangle between the axes
};

/// Lays out a chart in the rectangle `bounds`. Axes of values whose major unit is automatic get one for which
/// their labels have room.
ChartLayout LayOutChart(ChartModel& chart, const Rect& bounds, const TextMeasure& measure);

}  // namespace plotsmith::render
