#include "render/threed/Plot3D.h"

#include <algorithm>

#include "render/threed/Areas3D.h"
#include "render/threed/Bars3D.h"
#include "render/threed/Pie3D.h"
#include "render/threed/StageAxes.h"
#include "render/threed/Surfaces.h"
#include "render/threed/Walls.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

/// Returns the first group that is drawn as bodies, or null. Excel doesn't combine groups in 3-D.
const GroupModel* FindGroup(const ChartModel& chart) {
  for (const GroupModel& group : chart.groups) {
    const bool boxed = group.family == Family::kBar || group.family == Family::kArea ||
                       group.family == Family::kLine || group.family == Family::kSurface;
    const bool hasAxes = group.category >= 0 && group.value >= 0;
    if (group.is3D && (group.family == Family::kPie || (boxed && hasAxes))) return &group;
  }
  return nullptr;
}

/// Returns the projection at which the labels stay in the rectangle `area`. Their extent depends on the edges
/// of the box, so the projection is found in steps.
Projection FitWithLabels(const Stage& stage, const StageAxes& axes, const View& view, const Rect& area) {
  const auto shapeFor = [&](const Rect& room) {
    // A contour chart fills its space like a flat chart.
    if (stage.Group().isContour) return BoxShape{room.height / std::max(room.width, 1e-3)};
    return stage.Shape(view);
  };
  Rect room = area;
  constexpr int kSteps = 4;
  constexpr double kLeast = 0.1;  // share of the area that the box keeps
  for (int step = 0; step < kSteps; ++step) {
    const Rect taken = axes.BoundsOf(Projection(view, shapeFor(room), room));
    const double left = room.left + (area.left - taken.left), top = room.top + (area.top - taken.top);
    const double right = room.Right() - (taken.Right() - area.Right());
    const double bottom = room.Bottom() - (taken.Bottom() - area.Bottom());
    room = {left, top, std::max(right - left, area.width * kLeast),
            std::max(bottom - top, area.height * kLeast)};
  }
  return {view, shapeFor(room), room};
}

}  // namespace

bool DrawPlot3D(xlsx::ChartPart& part, Plot& plot, const Rect& outer) {
  const GroupModel* group = FindGroup(plot.chart);
  if (group == nullptr) return false;
  if (plot.chart.groups.size() > 1) plot.canvas.Note("Only the first plot group of a chart in 3-D is drawn.");
  if (group->family == Family::kPie) {
    DrawPie3D(part, plot, *group);
    return true;
  }
  const View view = group->isContour ? ContourView() : ReadView(xlsx::xml::Child(part.Space(), "chart"));
  const Stage stage(plot.chart, *group);
  const StageAxes axes(stage, plot.canvas.Measure(), plot.chart.dates);
  const Projection projection = FitWithLabels(stage, axes, view, outer);
  DrawWalls(plot.canvas, stage, projection, ReadWalls(part), plot.chart.dates);
  if (group->family == Family::kBar) DrawBars3D(plot, stage, projection);
  if (group->family == Family::kArea) DrawAreas3D(plot, stage, projection);
  if (group->family == Family::kLine) DrawRibbons3D(plot, stage, projection);
  if (group->family == Family::kSurface) DrawSurface(plot, stage, projection);
  axes.Draw(plot.canvas, projection);
  return true;
}

}  // namespace plotsmith::render
