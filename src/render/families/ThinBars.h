#pragma once

#include <map>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Bars that are too thin to be told apart. Neighbours of a series that look alike become one, and those that
/// others hide are left out, so that the picture stays small however many there are.
class ThinBars {
 public:
  /// Bars of at most this width, in points, are thin.
  static constexpr double kWidest = 0.1;

  explicit ThinBars(bool horizontal) : horizontal_(horizontal) {}

  /// Takes the bar of a point, from 0. Series come from the one in front to the one behind all others, bars
  /// as they follow each other along the axis.
  void Add(const SeriesModel& series, std::size_t point, const Rect& box);
  void Draw(Canvas& canvas);

 private:
  /// Bars of one look in one path.
  struct Run {
    const SeriesModel* series = nullptr;
    const ShapeStyle* style = nullptr;
    bool inverted = false;
    ShapeStyle look;
    Path path;
  };

  void Finish();

  bool horizontal_;
  std::vector<Run> runs_;  ///< from the front to the back
  Rect open_;              ///< of the neighbours that are one so far
  long long column_ = 0;   ///< in which these lie
  bool hasOpen_ = false;
  std::map<long long, Rect> covers_;  ///< what is hidden in each column
};

}  // namespace plotsmith::render
