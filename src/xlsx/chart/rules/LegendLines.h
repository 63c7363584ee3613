#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::xlsx {

class ChartPart;

/// An entry of the legend that was not deleted. The legend has an entry for each series, or for each point
/// where points differ in colour. Numbers count from 0.
struct LegendLine {
  std::size_t number;                ///< among all entries, with the deleted ones
  std::size_t series;                ///< the place in plot order of the series that the key shows
  std::optional<std::size_t> point;  ///< in a legend of points
  std::string text;
};
/// The numbers of the first entries that were not deleted, at most `most` of them. A part may claim millions
/// of points that it doesn't have.
std::vector<std::size_t> LegendNumbers(ChartPart& part, std::size_t most = SIZE_MAX);
/// The same entries with their texts.
std::vector<LegendLine> LegendLines(ChartPart& part, std::size_t most = SIZE_MAX);
/// The texts of the entries that were not deleted.
std::vector<std::string> LegendTexts(ChartPart& part);

/// Call this before the series at a place, from 0, is deleted. The entry of the series is deleted with it,
/// and the entries behind it move up, because the file refers to entries by their places.
void DropLegendEntry(ChartPart& part, std::size_t position);
/// Call this before a series is added at a place, from 0. It removes what the file still says about an entry
/// of an earlier series there.
void ClearStaleLegendEntries(ChartPart& part, std::size_t position);

}  // namespace plotsmith::xlsx
