#include "render/axes/AxisDrawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "render/axes/AxisMap.h"
#include "render/axes/AxisPlace.h"
#include "render/axes/CategoryLevels.h"
#include "render/axes/DateAxis.h"
#include "xlsx/chart/rules/AutomaticLayout.h"

namespace plotsmith::render {
namespace {

constexpr double kMajorMark = 4, kMinorMark = 2.5;  // points
constexpr std::size_t kMostMarks = 2000;

/// Returns the positions of the major tick marks and gridlines along an axis, in points.
std::vector<double> MajorPlaces(const AxisModel& axis, const AxisMap& map, xlsx::DateSystem dates) {
  std::vector<double> places;
  if (axis.IsOfValues()) {
    for (const Tick& tick : MajorTicks(axis, dates)) places.push_back(map.OfValue(tick.value));
    return places;
  }
  if (axis.dates) {
    for (const DateTick& tick : DateTicks(axis, dates)) {
      places.push_back(map.OfSlot(tick.slot - (axis.crossesBetween ? 0.5 : 0)));
    }
    if (axis.crossesBetween) places.push_back(map.High());
    return places;
  }
  const auto count = static_cast<long long>(axis.categories.size());
  const long long marks = axis.crossesBetween ? count + 1 : count;
  constexpr double kNearest = 1.5;  // points between tick marks; nearer ones would merge
  const double every = static_cast<double>(axis.tickSkip);
  const double multiple = std::ceil(kNearest / std::max(map.CategoryWidth() * every, 1e-9));
  const auto step = static_cast<long long>(std::min(every * std::max(multiple, 1.0), 1e9));
  for (long long i = 0; i < marks; i += step) {
    places.push_back(map.OfSlot(static_cast<double>(i) - (axis.crossesBetween ? 0.5 : 0)));
  }
  return places;
}

std::vector<double> MinorPlaces(const AxisModel& axis, const AxisMap& map) {
  std::vector<double> places;
  if (axis.IsOfValues()) {
    for (const double value : MinorTicks(axis)) places.push_back(map.OfValue(value));
  } else if (!axis.dates && axis.categories.size() < kMostMarks) {
    for (std::size_t i = 0; i < axis.categories.size(); ++i) {
      places.push_back(map.OfSlot(static_cast<double>(i) + (axis.crossesBetween ? 0 : 0.5)));
    }
  }
  return places;
}

void DrawAxisLines(Canvas& canvas, Role role, const AxisModel& axis, const std::vector<double>& places,
                   const Rect& plot, const Stroke& stroke) {
  int number = 0;
  for (const double at : places) {
    const Tag tag{role, axis.number, ++number};
    if (axis.IsUpright()) {
      canvas.AddLine(tag, {plot.left, at}, {plot.Right(), at}, stroke);
    } else {
      canvas.AddLine(tag, {at, plot.top}, {at, plot.Bottom()}, stroke);
    }
  }
}

void DrawMarks(Canvas& canvas, Role role, const AxisModel& axis, const std::vector<double>& places,
               const std::string& kind, double length, const AxisPlace& place) {
  if (kind == "none") return;
  const bool back = place.side == Side::kLeft || place.side == Side::kTop;
  const double outwards = back ? -1 : 1;
  const double from = kind == "out" ? 0 : -outwards * length, to = kind == "in" ? 0 : outwards * length;
  int number = 0;
  for (const double at : places) {
    const Tag tag{role, axis.number, ++number};
    if (axis.IsUpright()) {
      canvas.AddLine(tag, {place.at + from, at}, {place.at + to, at}, axis.line);
    } else {
      canvas.AddLine(tag, {at, place.at + from}, {at, place.at + to}, axis.line);
    }
  }
}

/// Returns the centre of a label on the outer side of its axis.
Point CenterOf(const AxisModel& axis, const TickLabels& labels, const TextBlock& block, double along,
               const AxisPlace& place) {
  const bool back = place.labelSide == Side::kLeft || place.labelSide == Side::kTop;
  const double outwards = back ? -1 : 1;
  const double width = block.TurnedWidth(), height = block.TurnedHeight();
  if (axis.IsUpright()) {
    // The edges of labels that face the axis are aligned.
    return {place.labelsAt + outwards * (xlsx::kLabelGap + width / 2), along};
  }
  const double y = place.labelsAt + outwards * (xlsx::kLabelGap + height / 2);
  const double sine = std::sin(labels.rotation * std::numbers::pi / 180);
  if (std::abs(sine) < 0.05 || std::abs(sine) > 0.99) return {along, y};
  // A slanted label ends or begins at its tick.
  const bool endsHere = (sine < 0) == (place.labelSide == Side::kBottom);
  const double cosine = std::cos(labels.rotation * std::numbers::pi / 180);
  const double reach = (block.width * std::abs(cosine)) / 2;
  return {along + (endsHere ? -reach : reach), y};
}

}  // namespace

void DrawGridlines(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot) {
  const AxisMap map = AxisMap::Along(axis, plot);
  if (axis.minorGridlines) {
    DrawAxisLines(canvas, Role::kMinorGridline, axis, MinorPlaces(axis, map), plot, *axis.minorGridlines);
  }
  if (axis.majorGridlines) {
    DrawAxisLines(canvas, Role::kGridline, axis, MajorPlaces(axis, map, chart.dates), plot,
                  *axis.majorGridlines);
  }
}

void DrawAxisLine(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot) {
  if (axis.hidden) return;
  const AxisPlace place = PlaceOf(chart, axis, plot);
  const AxisMap map = AxisMap::Along(axis, plot);
  DrawMarks(canvas, Role::kMinorTickMark, axis, MinorPlaces(axis, map), axis.minorTicks, kMinorMark, place);
  DrawMarks(canvas, Role::kTickMark, axis, MajorPlaces(axis, map, chart.dates), axis.majorTicks, kMajorMark,
            place);
  const Tag tag{Role::kAxisLine, axis.number};
  if (axis.IsUpright()) {
    canvas.AddLine(tag, {place.at, plot.top}, {place.at, plot.Bottom()}, axis.line);
  } else {
    canvas.AddLine(tag, {plot.left, place.at}, {plot.Right(), place.at}, axis.line);
  }
}

void DrawTickLabels(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const TickLabels& labels,
                    const Rect& plot) {
  if (labels.IsEmpty()) return;
  const AxisPlace place = PlaceOf(chart, axis, plot);
  const AxisMap map = AxisMap::Along(axis, plot);
  for (const TickLabel& label : labels.labels) {
    const double along = label.category ? map.OfSlot(label.place) : map.OfValue(label.place);
    const TextAlign align = !axis.IsUpright()                ? TextAlign::kMiddle
                            : place.labelSide == Side::kLeft ? TextAlign::kEnd
                                                             : TextAlign::kStart;
    DrawBlock(canvas, {Role::kTickLabel, axis.number, label.number}, label.block,
              CenterOf(axis, labels, label.block, along, place), align);
  }
  DrawOuterLevels(canvas, axis, labels, map, place);
}

}  // namespace plotsmith::render
