#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace plotsmith::xlsx {

class Styles;

/// The height of rows of a sheet that doesn't say it, in points.
inline constexpr double kDefaultRowHeight = 15;

/// Where the lines between columns, or rows, of a sheet lie. Indices count from 0, as anchors do; distances
/// are points.
class GridLines {
 public:
  explicit GridLines(double defaultSize, std::int32_t count) : default_(defaultSize), count_(count) {}

  /// Ranges come in ascending order and don't overlap; both ends are inside.
  void SetSize(std::int32_t first, std::int32_t last, double size);
  double SizeOf(std::int32_t index) const;
  /// The left or upper edge.
  double EdgeOf(std::int32_t index) const;
  /// The column or row that a distance lies in, and the rest of the distance within it.
  std::pair<std::int32_t, double> IndexAt(double points) const;

 private:
  struct Own {
    std::int32_t first, last;
    double size;
    double edge;  ///< the left or upper one of the first
  };
  double default_;
  std::int32_t count_;
  std::vector<Own> own_;
};

struct SheetGeometry {
  GridLines columns;
  GridLines rows;
};

/// The width of the widest digit in the Normal font, in pixels at 96 dots an inch, by which column widths
/// count.
int DigitWidth(const Styles& styles);

/// From the part before `sheetData` and the heights that rows have of their own.
SheetGeometry ReadGeometry(const std::string& head,
                           const std::vector<std::pair<std::int32_t, double>>& rowHeights,
                           const Styles& styles);

}  // namespace plotsmith::xlsx
