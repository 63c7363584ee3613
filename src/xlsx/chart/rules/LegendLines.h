#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::xlsx {

class ChartPart;

/// A legend entry that was not deleted. The legend has an entry for each series, or for each point if points
/// have different colours. Numbers count from 0.
struct LegendLine {
  std::size_t number;                ///< among all entries, including deleted ones
  std::size_t series;                ///< the position, in plot order, of the series that the key shows
  std::optional<std::size_t> point;  ///< the point, in a legend of points
  std::string text;                  ///< the shown text
};
/// The numbers of the first `most` entries that were not deleted, from 0. The limit matters because a part
/// may declare millions of points that it doesn't contain.
std::vector<std::size_t> LegendNumbers(ChartPart& part, std::size_t most = SIZE_MAX);
/// The maximum number of entries whose texts are read. A text can take 100 KB even in a small file, because
/// all entries share the texts of the outer levels of categories.
inline constexpr std::size_t kMostLegendEntries = 2000;
/// The first kMostLegendEntries entries that were not deleted, with their texts. The text of a category has
/// at most as many characters as a cell.
std::vector<LegendLine> LegendLines(ChartPart& part);
/// The texts of the same entries.
std::vector<std::string> LegendTexts(ChartPart& part);

/// Call this before the series at a position, from 0, is deleted. The series' entry is deleted, and the later
/// entries move up, because the file refers to entries by position.
void DropLegendEntry(ChartPart& part, std::size_t position);
/// Call this before a series is added at a position, from 0. It removes the settings that the file still
/// contains for an earlier series' entry there.
void ClearStaleLegendEntries(ChartPart& part, std::size_t position);

}  // namespace plotsmith::xlsx
