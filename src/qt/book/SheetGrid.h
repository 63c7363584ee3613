#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::qtbook {

/// A row or a column in a window.
struct Line {
  std::int32_t number;  ///< The number, from 1.
  int edge;             ///< The distance from the sheet's corner to the upper or left edge, in pixels.
  int size;             ///< The size in pixels, at least 1.
};

/// The rows or the columns of a sheet in pixels. Edges are rounded rather than sizes, so that a position in
/// points has the same pixel for cells and for shapes.
class SheetGrid {
 public:
  /// Makes a grid. `lines` has `count` rows or columns and must outlive this object.
  SheetGrid(const xlsx::GridLines& lines, std::int32_t count, double pixelsPerPoint)
      : lines_(lines), count_(count), scale_(pixelsPerPoint) {}

  /// The number of rows or columns.
  std::int32_t Count() const { return count_; }
  /// Returns the upper or left edge of a row or column, counted from 1. The edge after the last one is the
  /// end of the sheet.
  int EdgeOf(std::int32_t number) const;
  /// Returns the size of a row or column in pixels; 0 if it is hidden.
  int SizeOf(std::int32_t number) const { return EdgeOf(number + 1) - EdgeOf(number); }
  /// Returns the row or column at a distance from the sheet's corner, or the first or last one for positions
  /// outside.
  std::int32_t NumberAt(int pixels) const;
  /// Returns the next row or column that isn't hidden, in direction 1 or -1, or `number` if there is none.
  std::int32_t NextShown(std::int32_t number, int direction) const;
  /// Returns the rows or columns with a pixel in the range [from, to), except hidden ones.
  std::vector<Line> LinesBetween(int from, int to) const;

 private:
  const xlsx::GridLines& lines_;
  std::int32_t count_;
  double scale_;
};

}  // namespace plotsmith::qtbook
