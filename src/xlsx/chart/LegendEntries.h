#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/LegendEntries.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The entries of the chart's legend: one for each series, or for each point where points differ in colour.
/// The file only names those that somebody deleted or dressed, by their numbers.
excel::Ref<excel::LegendEntries> MakeLegendEntries(std::shared_ptr<ChartPart> part);

/// An entry of the legend that is left. Numbers count from 0.
struct LegendLine {
  std::size_t number;                ///< among all entries, deleted ones included
  std::size_t series;                ///< the place in plot order of the series that the key shows
  std::optional<std::size_t> point;  ///< where points have entries
  std::string text;
};
/// The first of them, `most` at most: a part may claim millions of points that it doesn't have.
std::vector<LegendLine> LegendLines(ChartPart& part, std::size_t most = SIZE_MAX);
/// What the entries that are left say, from the first.
std::vector<std::string> LegendTexts(ChartPart& part);

/// Entries go by the places of their series, so whoever adds or deletes a series says so here. Before the one
/// at a place, from 0, is deleted: its entry goes with it, and those behind it move up.
void DropLegendEntry(ChartPart& part, std::size_t position);
/// Before a series is added behind the last: what the file still says of an entry there was another series'.
void ClearStaleLegendEntries(ChartPart& part, std::size_t position);

}  // namespace plotsmith::xlsx
