#include "render/model/ChartModel.h"

#include <algorithm>
#include <utility>

namespace plotsmith::render {

bool LabelModel::ShowsAnything() const {
  return showsValue || showsPercent || showsCategory || showsSeries || showsBubbleSize || !own.IsEmpty();
}

const LabelModel* LabelsModel::Of(std::size_t point) const {
  if (deleted.contains(point)) return nullptr;
  const auto special = points.find(point);
  const LabelModel& label = special == points.end() ? common : special->second;
  return label.ShowsAnything() ? &label : nullptr;
}

const ShapeStyle& SeriesModel::StyleOf(std::size_t point) const {
  const auto special = points.find(point);
  if (special != points.end()) return special->second.style;
  return palette.empty() ? style : palette[point % palette.size()].style;
}

bool SeriesModel::IsInverted(std::size_t point, double value) const {
  if (!(value < 0)) return false;
  const auto special = points.find(point);
  return special == points.end() ? invertIfNegative
                                 : special->second.invertIfNegative.value_or(invertIfNegative);
}

ShapeStyle SeriesModel::StyleOf(std::size_t point, double value) const {
  ShapeStyle shape = StyleOf(point);
  if (!IsInverted(point, value)) return shape;
  if (std::holds_alternative<SolidFill>(shape.fill)) shape.fill = invertedFill;
  if (auto* pattern = std::get_if<PatternFill>(&shape.fill)) {
    std::swap(pattern->foreground, pattern->background);
  }
  return shape;
}

const MarkerModel& SeriesModel::MarkerOf(std::size_t point) const {
  const auto special = points.find(point);
  if (special != points.end() && special->second.marker) return *special->second.marker;
  const auto* varied = palette.empty() ? nullptr : &palette[point % palette.size()].marker;
  return varied != nullptr && varied->has_value() ? **varied : marker;
}

bool GroupModel::CanHaveErrorBars() const {
  switch (family) {
    case Family::kArea:
    case Family::kBar:
    case Family::kLine:
    case Family::kScatter:
    case Family::kBubble:
    case Family::kStock:
      return !is3D;
    default:
      return false;
  }
}

std::size_t GroupModel::PointCount() const {
  std::size_t count = 0;
  for (const SeriesModel& one : series) count = std::max(count, one.values.size());
  return count;
}

bool ChartModel::Is3D() const {
  return std::any_of(groups.begin(), groups.end(), [](const GroupModel& group) { return group.is3D; });
}

bool ChartModel::IsRound() const {
  return std::all_of(groups.begin(), groups.end(), [](const GroupModel& group) { return group.IsRound(); });
}

const GroupModel* ChartModel::GroupOfSeries(int number) const {
  for (const GroupModel& group : groups) {
    for (const SeriesModel& one : group.series) {
      if (one.number == number) return &group;
    }
  }
  return nullptr;
}

const SeriesModel* ChartModel::FindSeries(int number) const {
  for (const GroupModel& group : groups) {
    for (const SeriesModel& one : group.series) {
      if (one.number == number) return &one;
    }
  }
  return nullptr;
}

}  // namespace plotsmith::render
