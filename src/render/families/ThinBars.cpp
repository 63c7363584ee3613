#include "render/families/ThinBars.h"

#include <cmath>
#include <utility>

namespace plotsmith::render {
namespace {

constexpr double kColumn = 0.5;  // points; less than a pixel

/// Returns whether a rectangle hides another, except for a part that is too thin to be visible.
bool Hides(const Rect& front, const Rect& back) {
  const Rect around = Union(front, back);
  return around.width <= front.width + ThinBars::kWidest && around.height <= front.height + ThinBars::kWidest;
}

}  // namespace

void ThinBars::Add(const SeriesModel& series, std::size_t point, const Rect& box) {
  const double along = horizontal_ ? box.Center().y : box.Center().x;
  const auto column = static_cast<long long>(std::floor(along / kColumn));
  const ShapeStyle* style = &series.StyleOf(point);
  const bool inverted = series.IsInverted(point, series.values[point]);
  const bool same = !runs_.empty() && runs_.back().series == &series && runs_.back().style == style &&
                    runs_.back().inverted == inverted;
  if (!same || column != column_) Finish();
  if (!same) runs_.push_back({&series, style, inverted, series.StyleOf(point, series.values[point]), {}});
  open_ = hasOpen_ ? Union(open_, box) : box;
  column_ = column;
  hasOpen_ = true;
}

void ThinBars::Finish() {
  if (!std::exchange(hasOpen_, false)) return;
  const auto [cover, isFirst] = covers_.try_emplace(column_, open_);
  if (!isFirst && Hides(cover->second, open_)) return;
  const auto length = [&](const Rect& box) { return horizontal_ ? box.width : box.height; };
  if (!isFirst && length(open_) > length(cover->second)) cover->second = open_;
  runs_.back().path.AddRect(open_);
}

void ThinBars::Draw(Canvas& canvas) {
  Finish();
  for (auto run = runs_.rbegin(); run != runs_.rend(); ++run) {
    canvas.Add({Role::kBar, run->series->number}, std::move(run->path), run->look.fill, run->look.stroke);
  }
  runs_.clear();
}

}  // namespace plotsmith::render
