#include "render/model/ChartModel.h"

#include <algorithm>
#include <cmath>
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

std::optional<std::pair<double, double>> SeenPart(const Trendline& line, const AxisModel* axis) {
  constexpr double kNearZero = 1e-3;  // share of the far end
  double from = line.from, to = line.to;
  if (axis != nullptr) {
    const auto [first, last] = axis->EndsOfX();
    from = std::max(from, first + line.shift);
    to = std::min(to, last + line.shift);
  }
  const bool isLogarithmic = axis != nullptr && axis->logBase;
  if ((isLogarithmic || (line.curve && line.curve->NeedsPositiveX())) && !(from > 0)) from = kNearZero * to;
  if (!(to > from) || !std::isfinite(to - from)) return std::nullopt;
  return std::pair(from, to);
}

std::vector<double> SamplesOf(const Trendline& line, const AxisModel& axis) {
  constexpr int kSteps = 200;
  std::vector<double> samples;
  const auto seen = SeenPart(line, &axis);
  if (!seen || !line.curve) return samples;
  const auto [from, to] = *seen;
  const bool byFactor = from > 0 && (axis.logBase || line.curve->NeedsPositiveX());
  for (int step = 0; step <= kSteps; ++step) {
    const double share = static_cast<double>(step) / kSteps;
    samples.push_back(byFactor ? from * std::pow(to / from, share) : from * (1 - share) + to * share);
  }
  return samples;
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

bool SeriesModel::HasShadows() const {
  return style.shadow || std::any_of(points.begin(), points.end(),
                                     [](const auto& point) { return point.second.style.shadow.has_value(); });
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

bool AxisModel::Shows(std::size_t category) const {
  if (!dates || category >= dates->positions.size()) return true;
  const double position = dates->positions[category];
  return position >= 0 && position < dates->count;
}

bool AxisModel::HasPositionOf(double value) const { return std::isfinite(value) && (!logBase || value > 0); }

double AxisModel::SlotCount() const {
  return std::max(dates ? dates->count : static_cast<double>(categories.size()), 1.0);
}

std::pair<double, double> AxisModel::EndsOfX() const {
  if (IsOfValues()) return {scale.minimum, scale.maximum};
  const double free = crossesBetween ? 0.5 : 0;
  return {1 - free, SlotCount() + free};
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
