#pragma once

#include <map>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Draws bars that are too thin to be told apart. Neighbours of a series with the same look are joined, and
/// hidden bars are left out, so that pictures of many bars stay small.
class ThinBars {
 public:
  /// Bars of at most this width, in points, are thin.
  static constexpr double kWidest = 0.1;

  /// `horizontal` says that the bars lie.
  explicit ThinBars(bool horizontal) : horizontal_(horizontal) {}

  /// Adds the bar of a point, which counts from 0. Series must be added from the foremost to the last, and
  /// their bars in the order along the axis.
  void Add(const SeriesModel& series, std::size_t point, const Rect& box);
  /// Draws the added bars from the last series to the foremost.
  void Draw(Canvas& canvas);

 private:
  /// Neighbouring bars of one look, as one path.
  struct Run {
    const SeriesModel* series = nullptr;
    const ShapeStyle* style = nullptr;
    bool inverted = false;
    ShapeStyle look;
    Path path;
  };

  /// Ends the bar that neighbours are joined to.
  void Finish();

  bool horizontal_;
  std::vector<Run> runs_;  ///< from the front to the back
  Rect open_;              ///< the neighbours that are joined so far
  long long column_ = 0;   ///< half point along the axis in which they are
  bool hasOpen_ = false;
  std::map<long long, Rect> covers_;  ///< longest bar in each column, which hides others
};

}  // namespace plotsmith::render
