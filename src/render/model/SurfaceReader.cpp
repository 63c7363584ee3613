#include <algorithm>
#include <cmath>

#include "render/model/ChartReader.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

constexpr std::size_t kMostBands = 60;

/// Returns the limits of the bands: the ends of an axis and its major units. If there are very many units,
/// only some of them are limits.
std::vector<double> LimitsOf(const AxisModel& axis) {
  constexpr double kDust = 1e-9;  // share of a unit
  const auto& [minimum, maximum, unit] = axis.scale;
  std::vector<double> limits = {minimum};
  if (axis.logBase) {
    const double step = std::max(unit, 2.0);
    while (limits.size() < kMostBands && limits.back() * step < maximum)
      limits.push_back(limits.back() * step);
  } else {
    const double steps = (maximum - minimum) / unit;
    const double every = std::max(std::ceil(steps / kMostBands), 1.0);
    for (double i = every; i < steps - kDust; i += every) {
      const double limit = minimum + i * unit;
      limits.push_back(std::abs(limit) < unit * kDust ? 0 : limit);
    }
  }
  limits.push_back(maximum);
  return limits;
}

void ReadBands(ReadingContext& context, const std::vector<double>& limits, GroupModel& group) {
  constexpr double kWireWidth = 1.5;  // points
  for (std::size_t i = 0; i + 1 < limits.size(); ++i) {
    const Color color = context.styles.SeriesColor(i, limits.size() - 1);
    ShapeStyle automatic{SolidFill{color}, {}};
    if (group.wireframe) automatic = {{}, {color, kWireWidth, {}, LineCap::kRound, LineJoin::kRound}};
    const auto format =
        schema::FindNumbered(xml::Child(group.node, "bandFmts"), "bandFmt", static_cast<long long>(i));
    ShapeStyle style = ReadStyle(context.part, xml::Child(format, "spPr"), automatic);
    if (group.wireframe) style.fill = {};
    group.bands.push_back({limits[i], limits[i + 1], std::move(style)});
  }
}

}  // namespace

void ReadSurfaces(ReadingContext& context, ChartModel& chart) {
  for (GroupModel& group : chart.groups) {
    if (group.family != Family::kSurface || group.value < 0) continue;
    group.wireframe = schema::BooleanVal(group.node, "wireframe", false);
    group.isContour = xml::Is(group.node, "surfaceChart");
    AxisModel& axis = chart.axes[static_cast<std::size_t>(group.value)];
    axis.settings.majorUnit = axis.scale.majorUnit;  // The height of the bands is this unit.
    ReadBands(context, LimitsOf(axis), group);
  }
}

}  // namespace plotsmith::render
