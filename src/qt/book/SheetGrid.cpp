#include "qt/book/SheetGrid.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::qtbook {

int SheetGrid::EdgeOf(std::int32_t number) const {
  return static_cast<int>(std::lround(lines_.EdgeOf(std::clamp(number, 1, count_ + 1) - 1) * scale_));
}

std::int32_t SheetGrid::NumberAt(int pixels) const {
  // An edge in the middle of a pixel is rounded up, so that the pixel belongs to the preceding line.
  constexpr double kMiddle = 0.5 - 1e-6;
  const auto [index, rest] = lines_.IndexAt((pixels + kMiddle) / scale_);
  return std::clamp(index + 1, 1, count_);
}

std::int32_t SheetGrid::NextShown(std::int32_t number, int direction) const {
  // Hidden lines have no size, so the adjacent pixel belongs to the next visible line.
  const int beside = direction > 0 ? EdgeOf(number + 1) : EdgeOf(number) - 1;
  if (beside < 0 || beside >= EdgeOf(count_ + 1)) return number;
  return NumberAt(beside);
}

std::vector<Line> SheetGrid::LinesBetween(int from, int to) const {
  std::vector<Line> shown;
  const int end = std::min(to, EdgeOf(count_ + 1));
  for (int at = std::max(from, 0); at < end;) {
    const std::int32_t number = NumberAt(at);
    const Line line{number, EdgeOf(number), SizeOf(number)};
    if (line.size > 0) shown.push_back(line);
    at = std::max(line.edge + line.size, at + 1);
  }
  return shown;
}

}  // namespace plotsmith::qtbook
