#pragma once

#include <optional>
#include <vector>

#include "render/axes/TickLabels.h"
#include "render/layout/DataTable.h"
#include "render/layout/LegendLayout.h"
#include "render/layout/TextBlock.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

struct PlacedTitle {
  TextBlock block;
  Rect box;  ///< with the room around the text
};

struct AxisLayout {
  TickLabels labels;
  std::optional<PlacedTitle> title, units;
};

/// Where the parts of a chart lie.
struct ChartLayout {
  std::optional<PlacedTitle> title;
  std::optional<LegendLayout> legend;
  std::optional<TableLayout> table;
  std::vector<AxisLayout> axes;  ///< one for each of the chart
  Rect outer;                    ///< the plot area with its tick labels
  Rect plot;                     ///< inside of the axes
};

/// Lays out a chart of the size of `bounds`. Axes of values without a unit by hand get one for which their
/// labels have room.
ChartLayout LayOutChart(ChartModel& chart, const Rect& bounds, const TextMeasure& measure);

}  // namespace plotsmith::render
