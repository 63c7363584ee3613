#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace plotsmith::xlsx {

class Styles;

/// The default height of rows, in points.
inline constexpr double kDefaultRowHeight = 15;

/// The positions of the lines between the columns, or the rows, of a sheet. Indices count from 0, as in
/// anchors. Distances are in points.
class GridLines {
 public:
  /// Makes `count` lines, all of the default size in points.
  explicit GridLines(double defaultSize, std::int32_t count) : default_(defaultSize), count_(count) {}

  /// Sets the size of columns or rows from `first` to `last`. Calls are in ascending order, and ranges don't
  /// overlap.
  void SetSize(std::int32_t first, std::int32_t last, double size);
  /// Returns the size of a column or row in points.
  double SizeOf(std::int32_t index) const;
  /// Returns the distance of the left or upper edge.
  double EdgeOf(std::int32_t index) const;
  /// Returns the column or row at a distance, and the rest of the distance within it.
  std::pair<std::int32_t, double> IndexAt(double points) const;

 private:
  struct Own {
    std::int32_t first, last;
    double size;
    double edge;  ///< The left or upper edge of `first`.
  };
  double default_;
  std::int32_t count_;
  std::vector<Own> own_;
};

/// The columns and rows of a sheet.
struct SheetGeometry {
  GridLines columns;  ///< The columns and their widths.
  GridLines rows;     ///< The rows and their heights.
};

/// Returns the width of the widest digit in the Normal font, in pixels at 96 dots per inch. It is the unit of
/// column widths.
int DigitWidth(const Styles& styles);

/// Makes the geometry from the text before `sheetData` and the heights of single rows.
SheetGeometry ReadGeometry(const std::string& head,
                           const std::vector<std::pair<std::int32_t, double>>& rowHeights,
                           const Styles& styles);

}  // namespace plotsmith::xlsx
