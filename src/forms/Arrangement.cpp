#include "forms/Arrangement.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "forms/Buttons.h"
#include "forms/Plain.h"

namespace plotsmith::forms {
namespace {

using Lengths = std::vector<int>;

bool IsControl(const Layout& part) { return part.kind == Layout::Kind::kControl; }

/// Returns true if the part is or contains a list or a multi-line text box.
bool HasLines(const Layout& part) {
  return part.lines > 0 || std::any_of(part.parts.begin(), part.parts.end(), HasLines);
}

/// Returns true if a control fills the height of its row. All others keep their own height.
bool FillsHeight(const Layout& part) {
  return !IsControl(part) || part.lines > 0 || dynamic_cast<const Frame*>(part.control) != nullptr ||
         dynamic_cast<const Image*>(part.control) != nullptr;
}

int Sum(const Lengths& lengths) { return std::accumulate(lengths.begin(), lengths.end(), 0); }

int Gaps(std::size_t count, const Measures& measures) {
  return count == 0 ? 0 : static_cast<int>(count - 1) * measures.Gap();
}

/// Distributes extra space by shares. Without shares, the lengths don't change.
void Distribute(Lengths& lengths, const Lengths& shares, int room) {
  int sum = Sum(shares);
  for (std::size_t i = 0; i < lengths.size() && sum > 0; ++i) {
    const int part = room * shares[i] / sum;  // A share of the remaining space.
    lengths[i] += part;
    room -= part;
    sum -= shares[i];
  }
}

/// The minimum sizes of the columns and rows of a grid, and their shares of the extra space.
struct GridLines {
  Lengths widths, heights, columnShares, rowShares;
};

GridLines LinesOf(const Layout& grid, const Measures& measures) {
  const auto columns = static_cast<std::size_t>(grid.columns);
  const std::size_t rows = (grid.parts.size() + columns - 1) / columns;
  GridLines lines{Lengths(columns), Lengths(rows), Lengths(columns), Lengths(rows)};
  for (std::size_t i = 0; i < grid.parts.size(); ++i) {
    const Layout& part = grid.parts[i];
    const std::size_t row = i / columns, column = i % columns;
    const Size size = LeastSize(part, measures);
    lines.widths[column] = std::max(lines.widths[column], size.width);
    lines.heights[row] = std::max(lines.heights[row], size.height);
    lines.columnShares[column] = std::max(lines.columnShares[column], part.stretch);
    lines.rowShares[row] = std::max(lines.rowShares[row], HasLines(part) ? 1 : 0);
  }
  return lines;
}

Size LeastSizeOfControl(const Layout& part, const Measures& measures) {
  const Control& control = *part.control;
  Size size = measures.LeastSize(control);
  if (part.characters > 0) size.width = std::max(size.width, measures.WidthOf(control, part.characters));
  if (part.lines > 0) size.height = measures.HeightOf(control, part.lines);
  if (part.parts.empty()) return size;
  const Size inside = LeastSize(part.parts.front(), measures);
  const Edges edges = measures.EdgesOf(control);
  return {std::max(size.width, inside.width + edges.left + edges.right),
          std::max(size.height, inside.height + edges.top + edges.bottom)};
}

class Arranger {
 public:
  explicit Arranger(const Measures& measures) : measures_(measures) {}

  void Place(const Layout& layout, const Area& area) {
    switch (layout.kind) {
      case Layout::Kind::kRow:
        return PlaceRow(layout, area);
      case Layout::Kind::kColumn:
        return PlaceColumn(layout, area);
      case Layout::Kind::kGrid:
        return PlaceGrid(layout, area);
      case Layout::Kind::kStack:
        for (const Layout& part : layout.parts) Place(part, area);
        return;
      case Layout::Kind::kControl:
        return PlaceControl(layout, area);
      case Layout::Kind::kSpace:
        return;
    }
  }

  std::vector<PlacedControl> Placed() && { return std::move(placed_); }

 private:
  void PlaceControl(const Layout& part, const Area& area) {
    placed_.push_back({part.control, area});
    if (part.parts.empty()) return;
    const Edges edges = measures_.EdgesOf(*part.control);
    Place(part.parts.front(),
          {area.left + edges.left, area.top + edges.top, area.width - edges.left - edges.right,
           area.height - edges.top - edges.bottom});
  }

  /// The vertical position of options in their cells.
  enum class OptionsAre { kCentred, kAtTheTop };

  /// Places a part in its cell. A part that doesn't fill the height is vertically centred, unless it is an
  /// option at the top.
  void PlaceInCell(const Layout& part, const Area& cell, OptionsAre options) {
    if (FillsHeight(part)) return Place(part, cell);
    const bool isOption = dynamic_cast<const OptionButton*>(part.control) != nullptr ||
                          dynamic_cast<const CheckBox*>(part.control) != nullptr;
    const int height = std::min(LeastSize(part, measures_).height, cell.height);
    const bool isAtTheTop = isOption && options == OptionsAre::kAtTheTop;
    const int above = isAtTheTop ? 0 : (cell.height - height) / 2;
    Place(part, {cell.left, cell.top + above, cell.width, height});
  }

  void PlaceRow(const Layout& row, const Area& area) {
    Lengths widths, shares;
    for (const Layout& part : row.parts) {
      widths.push_back(LeastSize(part, measures_).width);
      shares.push_back(part.stretch);
    }
    Distribute(widths, shares, area.width - Sum(widths) - Gaps(widths.size(), measures_));
    const auto options = HasLines(row) ? OptionsAre::kAtTheTop : OptionsAre::kCentred;  // beside a list
    int left = area.left;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      PlaceInCell(row.parts[i], {left, area.top, widths[i], area.height}, options);
      left += widths[i] + measures_.Gap();
    }
  }

  void PlaceColumn(const Layout& column, const Area& area) {
    Lengths heights, shares, lists;
    for (const Layout& part : column.parts) {
      heights.push_back(LeastSize(part, measures_).height);
      shares.push_back(part.stretch);
      lists.push_back(HasLines(part) ? 1 : 0);
    }
    const int room = area.height - Sum(heights) - Gaps(heights.size(), measures_);
    Distribute(heights, Sum(shares) > 0 ? shares : lists, room);
    int top = area.top;
    for (std::size_t i = 0; i < heights.size(); ++i) {
      Place(column.parts[i], {area.left, top, area.width, heights[i]});
      top += heights[i] + measures_.Gap();
    }
  }

  void PlaceGrid(const Layout& grid, const Area& area) {
    GridLines lines = LinesOf(grid, measures_);
    Distribute(lines.widths, lines.columnShares,
               area.width - Sum(lines.widths) - Gaps(lines.widths.size(), measures_));
    Distribute(lines.heights, lines.rowShares,
               area.height - Sum(lines.heights) - Gaps(lines.heights.size(), measures_));
    Area cell{area.left, area.top, 0, 0};
    for (std::size_t i = 0; i < grid.parts.size(); ++i) {
      const std::size_t row = i / lines.widths.size(), column = i % lines.widths.size();
      cell.width = lines.widths[column];
      cell.height = lines.heights[row];
      PlaceInCell(grid.parts[i], cell, OptionsAre::kCentred);
      cell.left += cell.width + measures_.Gap();
      if (column + 1 < lines.widths.size()) continue;
      cell.left = area.left;
      cell.top += cell.height + measures_.Gap();
    }
  }

  const Measures& measures_;
  std::vector<PlacedControl> placed_;
};

}  // namespace

Size LeastSize(const Layout& layout, const Measures& measures) {
  Size size;
  switch (layout.kind) {
    case Layout::Kind::kControl:
      return LeastSizeOfControl(layout, measures);
    case Layout::Kind::kSpace:
      return {};
    case Layout::Kind::kGrid: {
      const GridLines lines = LinesOf(layout, measures);
      return {Sum(lines.widths) + Gaps(lines.widths.size(), measures),
              Sum(lines.heights) + Gaps(lines.heights.size(), measures)};
    }
    case Layout::Kind::kRow:
    case Layout::Kind::kColumn:
    case Layout::Kind::kStack:
      break;
  }
  const bool isRow = layout.kind == Layout::Kind::kRow, isColumn = layout.kind == Layout::Kind::kColumn;
  for (const Layout& part : layout.parts) {
    const Size least = LeastSize(part, measures);
    size.width = isRow ? size.width + least.width : std::max(size.width, least.width);
    size.height = isColumn ? size.height + least.height : std::max(size.height, least.height);
  }
  const int gaps = Gaps(layout.parts.size(), measures);
  if (isRow) size.width += gaps;
  if (isColumn) size.height += gaps;
  return size;
}

std::vector<PlacedControl> Arrange(const Layout& layout, const Measures& measures, const Area& area) {
  Arranger arranger(measures);
  arranger.Place(layout, area);
  return std::move(arranger).Placed();
}

}  // namespace plotsmith::forms
