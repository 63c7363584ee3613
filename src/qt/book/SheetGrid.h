#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::qtbook {

/// A row or a column in a window.
struct Line {
  std::int32_t number;  ///< from 1
  int edge;             ///< pixels from the sheet's corner to its upper or left edge
  int size;             ///< pixels, at least 1
};

/// The rows, or the columns, of a sheet in pixels. Edges are rounded, not sizes, so that a place in points is
/// at the same pixel for a cell and for what is drawn over it.
class SheetGrid {
 public:
  /// `lines` has `count` rows or columns, and outlives this object.
  SheetGrid(const xlsx::GridLines& lines, std::int32_t count, double pixelsPerPoint)
      : lines_(lines), count_(count), scale_(pixelsPerPoint) {}

  std::int32_t Count() const { return count_; }
  /// The upper or left edge of a row or column, from 1; that of the one behind the last is the sheet's end.
  int EdgeOf(std::int32_t number) const;
  int SizeOf(std::int32_t number) const { return EdgeOf(number + 1) - EdgeOf(number); }
  /// The row or column at a distance from the sheet's corner; the first or the last for one outside.
  std::int32_t NumberAt(int pixels) const;
  /// The nearest one in a direction, 1 or -1, that isn't hidden; `number` itself if there is none.
  std::int32_t NextShown(std::int32_t number, int direction) const;
  /// Those that have a pixel from `from` on and before `to`, without the hidden ones.
  std::vector<Line> LinesBetween(int from, int to) const;

 private:
  const xlsx::GridLines& lines_;
  std::int32_t count_;
  double scale_;
};

}  // namespace plotsmith::qtbook
