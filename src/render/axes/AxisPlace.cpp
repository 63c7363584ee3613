#include "render/axes/AxisPlace.h"

#include <algorithm>
#include <cmath>

#include "render/axes/AxisMap.h"

namespace plotsmith::render {
namespace {

/// Returns the position on the crossed axis at which `axis` crosses it.
double CrossingOn(const AxisModel& crossed, const AxisModel& axis, const AxisMap& map) {
  if (crossed.IsOfValues()) return map.OfValue(CrossingValue(crossed, axis));
  if (axis.crosses == "max" && !axis.crossesAt) return map.High();
  if (axis.crosses == "min" && !axis.crossesAt) return map.Low();
  const double categories =
      crossed.dates ? crossed.dates->count : static_cast<double>(crossed.categories.size());
  const double count = std::max(categories, 1.0);
  const double number = std::clamp(axis.crossesAt.value_or(1), 1.0, count + (crossed.crossesBetween ? 1 : 0));
  // If the axis crosses between categories, it does so before the category with the number.
  return map.OfSlot(number - 1 - (crossed.crossesBetween ? 0.5 : 0));
}

}  // namespace

double CrossingValue(const AxisModel& values, const AxisModel& category) {
  const double least = values.scale.minimum, most = values.scale.maximum;
  if (category.crossesAt) return std::clamp(*category.crossesAt, least, most);
  if (category.crosses == "max") return most;
  if (category.crosses == "min" || values.logBase) return least;
  return std::clamp(0.0, least, most);
}

double EdgeOf(const Rect& rect, Side side) {
  switch (side) {
    case Side::kLeft:
      return rect.left;
    case Side::kRight:
      return rect.Right();
    case Side::kTop:
      return rect.top;
    case Side::kBottom:
      break;
  }
  return rect.Bottom();
}

Side Opposite(Side side) {
  switch (side) {
    case Side::kLeft:
      return Side::kRight;
    case Side::kRight:
      return Side::kLeft;
    case Side::kTop:
      return Side::kBottom;
    case Side::kBottom:
      break;
  }
  return Side::kTop;
}

AxisPlace PlaceOf(const ChartModel& chart, const AxisModel& axis, const Rect& plot) {
  AxisPlace place;
  const Side usual = axis.IsUpright() ? Side::kLeft : Side::kBottom;
  const AxisModel* crossed = axis.crossed < 0 ? nullptr : &chart.axes[static_cast<std::size_t>(axis.crossed)];
  if (crossed == nullptr || crossed->IsUpright() == axis.IsUpright()) {
    place.side = place.labelSide = axis.side;
    place.at = place.labelsAt = EdgeOf(plot, axis.side);
    return place;
  }
  const AxisMap map = AxisMap::Along(*crossed, plot);
  place.at = CrossingOn(*crossed, axis, map);
  constexpr double kClose = 0.5;  // points; an axis that is nearer to an edge is on it
  const bool far = std::abs(place.at - EdgeOf(plot, Opposite(usual))) < kClose;
  place.side = far ? Opposite(usual) : usual;
  place.labelSide = place.side;
  place.labelsAt = place.at;
  if (axis.tickLabels == "low" || axis.tickLabels == "high") {
    const double edge = axis.tickLabels == "low" ? map.Low() : map.High();
    place.labelSide = std::abs(edge - EdgeOf(plot, usual)) < kClose ? usual : Opposite(usual);
    place.labelsAt = edge;
  }
  return place;
}

}  // namespace plotsmith::render
