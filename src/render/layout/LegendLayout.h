#pragma once

#include <vector>

#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// Where an entry lies, from the legend's corner.
struct PlacedEntry {
  const LegendEntry* entry = nullptr;
  Rect key;
  TextBlock text;
  Point textCenter;
};

struct LegendLayout {
  Rect box;
  std::vector<PlacedEntry> entries;  ///< those for which there is room
  std::size_t leftOut = 0;           ///< how many others there are
};

/// Lays a legend out in what title and insets leave of the chart. `free` loses the room that it takes.
LegendLayout LayOutLegend(const ChartModel& chart, const Rect& bounds, Rect& free,
                          const TextMeasure& measure);
/// Draws the frame, the keys and the texts, and says if entries are left out.
void DrawLegend(Canvas& canvas, const ChartModel& chart, const LegendLayout& layout);

}  // namespace plotsmith::render
