#include "render/sheet/PageCuts.h"

#include <algorithm>
#include <cstdint>

namespace plotsmith::render {
namespace {

/// The tolerance in points. Sizes in files are rounded, so rows or columns that fit may seem a little too
/// large.
constexpr double kSlack = 0.01;
constexpr int kLeastPercent = 10, kMostPercent = 100;

/// The first and the last row or column of a page, from 1.
struct Lines {
  std::int32_t first, last;
};

/// Returns the lines of the page that begins with `first`. The page ends at the end of the available space,
/// or at a page break.
Lines PageFrom(std::int32_t first, std::int32_t last, const xlsx::GridLines& lines, double room,
               const std::vector<std::int32_t>& breaks) {
  const double end = lines.EdgeOf(first - 1) + room + kSlack;
  // IndexAt counts from 0, so its result is the number of the line before the one in which the room ends.
  std::int32_t fitting = std::clamp(lines.IndexAt(end).first, first, last);
  if (lines.EdgeOf(last) <= end) fitting = last;
  const auto next = std::lower_bound(breaks.begin(), breaks.end(), first);
  return {first, next == breaks.end() ? fitting : std::min(fitting, *next)};
}

std::size_t CountPages(Lines all, const xlsx::GridLines& lines, double room,
                       const std::vector<std::int32_t>& breaks) {
  std::size_t count = 0;
  for (std::int32_t at = all.first; at <= all.last; ++count)
    at = PageFrom(at, all.last, lines, room, breaks).last + 1;
  return count;
}

std::vector<Lines> ListPages(Lines all, const xlsx::GridLines& lines, double room,
                             const std::vector<std::int32_t>& breaks, std::size_t most) {
  std::vector<Lines> pages;
  for (std::int32_t at = all.first; at <= all.last && pages.size() < most; at = pages.back().last + 1)
    pages.push_back(PageFrom(at, all.last, lines, room, breaks));
  return pages;
}

Lines RowsOf(const xlsx::CellRange& range) { return {range.row1, range.row2}; }
Lines ColumnsOf(const xlsx::CellRange& range) { return {range.column1, range.column2}; }

/// The space between the margins at a scale, in points of the sheet.
struct Room {
  double width, height;
};
Room RoomOf(const xlsx::PageSetup& setup, double scale) {
  return {std::max(setup.paperWidth - setup.left - setup.right, 1.0) / scale,
          std::max(setup.paperHeight - setup.top - setup.bottom, 1.0) / scale};
}

/// Returns whether all ranges fit into the pages that the setup allows. As in Excel, page breaks are ignored
/// for that.
bool Fits(const xlsx::PageSetup& setup, const xlsx::SheetGeometry& geometry,
          const std::vector<xlsx::CellRange>& ranges, double scale) {
  const Room room = RoomOf(setup, scale);
  const auto fits = [](std::size_t count, int most) {
    return most == 0 || count <= static_cast<std::size_t>(most);
  };
  return std::all_of(ranges.begin(), ranges.end(), [&](const xlsx::CellRange& range) {
    return fits(CountPages(ColumnsOf(range), geometry.columns, room.width, {}), setup.fitWidth) &&
           fits(CountPages(RowsOf(range), geometry.rows, room.height, {}), setup.fitHeight);
  });
}

/// Returns the largest scale, in whole percents, at which the ranges fit.
double FittingScale(const xlsx::PageSetup& setup, const xlsx::SheetGeometry& geometry,
                    const std::vector<xlsx::CellRange>& ranges) {
  int fits = kLeastPercent, tooLarge = kMostPercent + 1;
  while (tooLarge - fits > 1) {
    const int middle = (fits + tooLarge) / 2;
    (Fits(setup, geometry, ranges, middle / 100.0) ? fits : tooLarge) = middle;
  }
  return fits / 100.0;
}

/// Appends the pages of a range, row by row or column by column, as the setup requires.
void ListRange(const xlsx::PageSetup& setup, const std::vector<Lines>& rows,
               const std::vector<Lines>& columns, std::size_t most, std::vector<xlsx::CellRange>& pages) {
  const auto add = [&](const Lines& row, const Lines& column) {
    if (pages.size() < most) pages.push_back({row.first, column.first, row.last, column.last});
  };
  if (setup.overThenDown) {
    for (const Lines& row : rows) {
      for (const Lines& column : columns) add(row, column);
    }
  } else {
    for (const Lines& column : columns) {
      for (const Lines& row : rows) add(row, column);
    }
  }
}

}  // namespace

PageCuts CutPages(const xlsx::PageSetup& setup, const xlsx::SheetGeometry& geometry,
                  const std::vector<xlsx::CellRange>& ranges, std::size_t most) {
  static const std::vector<std::int32_t> kNoBreaks;
  PageCuts cuts;
  cuts.scale = setup.fits ? FittingScale(setup, geometry, ranges) : setup.scale;
  const Room room = RoomOf(setup, cuts.scale);
  const auto& rowBreaks = setup.fits ? kNoBreaks : setup.rowBreaks;
  const auto& columnBreaks = setup.fits ? kNoBreaks : setup.columnBreaks;
  for (const xlsx::CellRange& range : ranges) {
    cuts.count += CountPages(RowsOf(range), geometry.rows, room.height, rowBreaks) *
                  CountPages(ColumnsOf(range), geometry.columns, room.width, columnBreaks);
    ListRange(setup, ListPages(RowsOf(range), geometry.rows, room.height, rowBreaks, most),
              ListPages(ColumnsOf(range), geometry.columns, room.width, columnBreaks, most), most,
              cuts.pages);
  }
  return cuts;
}

}  // namespace plotsmith::render
