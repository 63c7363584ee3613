#pragma once

#include <vector>

#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// An entry of the legend with its place.
struct PlacedEntry {
  const LegendEntry* entry = nullptr;
  Rect key;
  TextBlock text;
  Point textCenter;
};

/// The legend with its place.
struct LegendLayout {
  Rect box;
  std::vector<PlacedEntry> entries;  ///< entries that have room
  std::size_t leftOut = 0;           ///< number of the others
};

/// Lays out the legend of a chart. `free` is the room that the title and the margins leave, and loses the
/// room that the legend takes.
LegendLayout LayOutLegend(const ChartModel& chart, const Rect& bounds, Rect& free,
                          const TextMeasure& measure);
/// Draws the frame, the keys and the texts. Adds a note if entries are left out.
void DrawLegend(Canvas& canvas, const ChartModel& chart, const LegendLayout& layout);

}  // namespace plotsmith::render
