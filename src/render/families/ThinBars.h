#pragma once

#include <map>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Draws bars that are too thin to be distinguished. Neighbouring bars of a series with the same format are
/// drawn as one, and hidden bars are left out. This keeps pictures of many bars small.
class ThinBars {
 public:
  /// Bars of at most this width, in points, are thin.
  static constexpr double kWidest = 0.1;

  /// Makes an empty collection. `horizontal` is true for horizontal bars.
  explicit ThinBars(bool horizontal) : horizontal_(horizontal) {}

  /// Adds the bar of a point by its index, from 0. Series must be added from front to back, and their bars in
  /// their order along the axis.
  void Add(const SeriesModel& series, std::size_t point, const Rect& box);
  /// Draws the added bars from the back to the front.
  void Draw(Canvas& canvas);

 private:
  /// Neighbouring bars with the same format, as one path.
  struct Run {
    const SeriesModel* series = nullptr;
    const ShapeStyle* style = nullptr;
    bool inverted = false;
    ShapeStyle look;
    Path path;
  };

  /// Ends the bar to which neighbouring bars are joined.
  void Finish();

  bool horizontal_;
  std::vector<Run> runs_;  ///< From the front to the back.
  Rect open_;              ///< The rectangle of the bars that are joined so far.
  long long column_ = 0;   ///< The interval of half a point along the axis in which these bars are.
  bool hasOpen_ = false;
  std::map<long long, Rect> covers_;  ///< The longest bar in each interval, which hides others.
};

}  // namespace plotsmith::render
