#include "render/axes/CategoryLevels.h"

#include <algorithm>
#include <cmath>

#include "xlsx/chart/rules/AutomaticLayout.h"

namespace plotsmith::render {
namespace {

/// A part of an axis, in points.
struct Span {
  double from = 0, to = 0;

  double Length() const { return std::abs(to - from); }
  double Middle() const { return (from + to) / 2; }
};

/// Returns the part of an axis from category `first` up to but not including `end`. It extends halfway to the
/// neighbouring categories.
Span SpanOf(const AxisModel& axis, const AxisMap& map, std::size_t first, std::size_t end) {
  const auto edge = [&](std::size_t index) {
    const double place = map.OfSlot(static_cast<double>(index) - 0.5);
    return std::clamp(place, std::min(map.Low(), map.High()), std::max(map.Low(), map.High()));
  };
  return axis.crossesBetween
             ? Span{map.OfSlot(static_cast<double>(first) - 0.5), map.OfSlot(static_cast<double>(end) - 0.5)}
             : Span{edge(first), edge(end)};
}

void AddLine(Canvas& canvas, const AxisModel& axis, double along, double from, double to) {
  const Tag tag{Role::kTickMark, axis.number};
  if (axis.IsUpright()) {
    canvas.AddLine(tag, {from, along}, {to, along}, axis.line);
  } else {
    canvas.AddLine(tag, {along, from}, {along, to}, axis.line);
  }
}

}  // namespace

void AddOuterLevels(const AxisModel& axis, double length, const TextMeasure& measure, TickLabels& labels) {
  if (labels.IsEmpty() || axis.kind != AxisKind::kCategory) return;
  const AxisMap map(axis, 0, length);
  TextStyle style = axis.text;
  style.rotation = axis.IsUpright() ? -90 : 0;
  for (const auto& groups : axis.outerLevels) {
    LevelLabels level;
    level.from = labels.depth + xlsx::kLabelGap / 2;
    for (const CategoryGroup& group : groups) {
      TextBlock block = LayOut(group.text, style, measure);
      Shorten(block, SpanOf(axis, map, group.first, group.end).Length() - 2, measure);
      level.depth = std::max(level.depth, block.height);
      level.groups.push_back({group, std::move(block)});
    }
    labels.depth = level.from + level.depth;
    labels.levels.push_back(std::move(level));
  }
}

void DrawOuterLevels(Canvas& canvas, const AxisModel& axis, const TickLabels& labels, const AxisMap& map,
                     const AxisPlace& place) {
  const bool back = place.labelSide == Side::kLeft || place.labelSide == Side::kTop;
  const auto across = [&](double depth) { return place.labelsAt + (back ? -1 : 1) * depth; };
  for (const LevelLabels& level : labels.levels) {
    const double middle = across(xlsx::kLabelGap + level.from + level.depth / 2);
    const double end = across(xlsx::kLabelGap + level.from + level.depth);
    for (const auto& [group, block] : level.groups) {
      const Span span = SpanOf(axis, map, group.first, group.end);
      const Point center = axis.IsUpright() ? Point{middle, span.Middle()} : Point{span.Middle(), middle};
      DrawBlock(canvas, {Role::kTickLabel, axis.number, static_cast<int>(group.first + 1)}, block, center);
      // If the axis begins on a category, a line would cross its label.
      if (axis.crossesBetween || group.first > 0) AddLine(canvas, axis, span.from, place.labelsAt, end);
    }
    if (level.groups.empty() || !axis.crossesBetween) continue;
    const CategoryGroup& last = level.groups.back().group;
    AddLine(canvas, axis, SpanOf(axis, map, last.first, last.end).to, place.labelsAt, end);
  }
}

}  // namespace plotsmith::render
