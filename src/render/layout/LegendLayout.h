#pragma once

#include <vector>

#include "render/model/ChartModel.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// An entry of the legend with its position.
struct PlacedEntry {
  const LegendEntry* entry = nullptr;  ///< The entry.
  Rect key;                            ///< The rectangle of the legend key.
  TextBlock text;                      ///< The text, broken into lines.
  Point textCenter;                    ///< The middle of the text.
};

/// The legend with its position.
struct LegendLayout {
  Rect box;                          ///< The frame.
  std::vector<PlacedEntry> entries;  ///< The entries for which there is enough space.
  std::size_t leftOut = 0;           ///< The number of entries without enough space.
};

/// Lays out the legend of a chart. `free` is the space inside the margins and below the title. It is reduced
/// by the space that the legend takes.
LegendLayout LayOutLegend(const ChartModel& chart, const Rect& bounds, Rect& free,
                          const TextMeasure& measure);
/// Draws the frame, the keys and the texts. Adds a note if entries are left out.
void DrawLegend(Canvas& canvas, const ChartModel& chart, const LegendLayout& layout);

}  // namespace plotsmith::render
