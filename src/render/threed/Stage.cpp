#include "render/threed/Stage.h"

#include <algorithm>
#include <cmath>

#include "render/axes/AxisMap.h"
#include "render/axes/AxisPlace.h"
#include "xlsx/drawing/DrawingSchema.h"

namespace plotsmith::render {
namespace {

constexpr double kLeastDepth = 0.02, kMostDepth = 20;  // shares of the extent of the category axis

}  // namespace

Stage::Stage(const ChartModel& chart, const GroupModel& group) : chart_(chart), group_(group) {
  categories_ = std::max<std::size_t>(group.PointCount(), 1);
  constexpr double kUsualGap = 150, kWidestGap = 500;  // percent
  const double gap = xlsx::schema::NumberVal(group.node, "gapDepth").value_or(kUsualGap);
  gapDepth_ = (std::isfinite(gap) ? std::clamp(gap, 0.0, kWidestGap) : kUsualGap) / 100;
}

const AxisModel* Stage::Series() const {
  return group_.depth < 0 || DepthSlots() == 1 ? nullptr
                                               : &chart_.axes[static_cast<std::size_t>(group_.depth)];
}

std::size_t Stage::DepthSlots() const {
  const bool behind = group_.grouping == Grouping::kStandard;
  return behind ? std::max<std::size_t>(group_.series.size(), 1) : 1;
}

std::size_t Stage::BarsOfCategory() const {
  const bool beside = group_.grouping == Grouping::kClustered;
  return beside ? std::max<std::size_t>(group_.series.size(), 1) : 1;
}

double Stage::BarShare() const {
  if (group_.family != Family::kBar) return 1 / (1 + gapDepth_);  // A slot is as deep as it is wide.
  return 1 / (static_cast<double>(BarsOfCategory()) + group_.gapWidth / 100);
}

BoxShape Stage::Shape(const View& view) const {
  // A bar on a date axis is as wide as its slot. Other bodies extend from date to date.
  const bool byDay = Categories().dates && group_.family == Family::kBar;
  const double slots = byDay ? std::max(Categories().dates->count, 1.0) : static_cast<double>(categories_);
  const double bar = BarShare() / slots;
  const double depth = static_cast<double>(DepthSlots()) * bar * (1 + gapDepth_) * view.depthPercent / 100;
  return {std::clamp(depth, kLeastDepth, kMostDepth), IsHorizontal()};
}

bool Stage::PointsAreOnTicks() const {
  if (group_.family == Family::kSurface) return categories_ > 1;
  return group_.family != Family::kBar && !Categories().crossesBetween && categories_ > 1;
}

Span Stage::Category(std::size_t index) const {
  if (Categories().dates) {
    const AxisMap map(Categories(), 0, 1);
    const double middle = map.OfCategory(static_cast<double>(index)), half = map.CategoryWidth() / 2;
    return {middle - half, middle + half};
  }
  const double count = static_cast<double>(categories_);
  Span span{static_cast<double>(index) / count, static_cast<double>(index + 1) / count};
  if (PointsAreOnTicks()) {
    const double step = 1 / (count - 1);
    span = {(static_cast<double>(index) - 0.5) * step, (static_cast<double>(index) + 0.5) * step};
  }
  return Categories().reversed ? Span{1 - span.to, 1 - span.from} : span;
}

double Stage::EdgeBefore(std::size_t index) const {
  const Span room = Category(std::min(index, categories_ - 1));
  return (index < categories_) != Categories().reversed ? room.from : room.to;
}

Span Stage::Bar(std::size_t category, std::size_t series) const {
  const Span room = Category(category);
  const double width = (room.to - room.from) * BarShare();
  std::size_t place = BarsOfCategory() > 1 ? series : 0;
  if (Categories().reversed) place = BarsOfCategory() - 1 - place;
  const double from =
      room.Middle() + width * (static_cast<double>(place) - static_cast<double>(BarsOfCategory()) / 2);
  return {from, from + width};
}

Span Stage::Depth(std::size_t series) const {
  const double slots = static_cast<double>(DepthSlots());
  double place = DepthSlots() > 1 ? static_cast<double>(series) : 0;
  if (Series() != nullptr && Series()->reversed) place = slots - 1 - place;
  if (group_.family == Family::kSurface && slots > 1) {
    place /= slots - 1;  // A surface goes from the first series to the last.
    return {place, place};
  }
  const double middle = (place + 0.5) / slots, half = 0.5 / slots / (1 + gapDepth_);
  return {middle - half, middle + half};
}

double Stage::Value(double value) const {
  return std::clamp(AxisMap(Values(), 0, 1).OfValue(value), 0.0, 1.0);
}

double Stage::Base() const { return CrossingValue(Values(), Categories()); }

Point3 Stage::At(const Projection& projection, double category, double value, double depth) const {
  return IsHorizontal() ? projection.Place(value, category, depth) : projection.Place(category, value, depth);
}

Point3 Stage::EyeShares(const Projection& projection) const {
  const Point3 eye = projection.Eye();
  const Box& box = projection.Extent();
  Point3 shares{eye.x / box.width, eye.y / box.height, eye.z / box.depth};
  if (IsHorizontal()) std::swap(shares.x, shares.y);
  return shares;
}

}  // namespace plotsmith::render
