#include "render/chart/ChartDrawing.h"

#include <algorithm>
#include <string>

#include "render/Canvas.h"
#include "render/Images.h"
#include "render/axes/AxisDrawing.h"
#include "render/chart/Description.h"
#include "render/families/Families.h"
#include "render/labels/DataLabels.h"
#include "render/layout/ChartLayout.h"
#include "render/model/ChartReader.h"
#include "render/model/EffectReader.h"
#include "render/model/StyleReader.h"
#include "render/model/StyledShape.h"
#include "render/shapes/UserShapes.h"
#include "render/threed/Plot3D.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

void DrawChartArea(Canvas& canvas, const ChartModel& chart) {
  const Stroke& stroke = chart.chartArea.stroke;
  const Rect box = Inset(canvas.Bounds(), stroke.width / 2, stroke.width / 2);
  Path path;
  if (chart.roundedCorners) {
    constexpr double kRadius = 8;  // points
    const double r = std::min({kRadius, box.width / 2, box.height / 2});
    const auto corner = [&](double left, double top) { return Rect{left, top, 2 * r, 2 * r}; };
    path.MoveTo({box.left + r, box.top}).LineTo({box.Right() - r, box.top});
    path.ArcTo(corner(box.Right() - 2 * r, box.top), 0, 90).LineTo({box.Right(), box.Bottom() - r});
    path.ArcTo(corner(box.Right() - 2 * r, box.Bottom() - 2 * r), 90, 90)
        .LineTo({box.left + r, box.Bottom()});
    path.ArcTo(corner(box.left, box.Bottom() - 2 * r), 180, 90).LineTo({box.left, box.top + r});
    path.ArcTo(corner(box.left, box.top), 270, 90).Close();
  } else {
    path.AddRect(box);
  }
  canvas.Add({Role::kChartArea}, std::move(path), chart.chartArea.fill, stroke);
}

void DrawGroup(Plot& plot, const GroupModel& group) {
  switch (group.family) {
    case Family::kBar:
      return DrawBars(plot, group);
    case Family::kArea:
      return DrawAreas(plot, group);
    case Family::kLine:
    case Family::kStock:
      return DrawLines(plot, group);
    case Family::kScatter:
      return DrawScatter(plot, group);
    case Family::kBubble:
      return DrawBubbles(plot, group);
    case Family::kPie:
    case Family::kDoughnut:
      return DrawPie(plot, group);
    case Family::kOfPie:
      return DrawOfPie(plot, group);
    case Family::kRadar:
      return DrawRadar(plot, group);
    case Family::kSurface:
      return plot.canvas.Note("A surface isn't drawn because it needs a category axis and a value axis.");
  }
}

/// Hides the axes of a chart that has only radar groups, or no groups. A radar chart draws its axes itself.
void HideAxesWithoutGroups(ChartModel& chart) {
  const auto isRadar = [](const GroupModel& group) { return group.family == Family::kRadar; };
  const bool hides = std::all_of(chart.groups.begin(), chart.groups.end(), isRadar);
  if (std::any_of(chart.groups.begin(), chart.groups.end(), isRadar)) chart.spokes = chart.axes;
  if (!hides) return;
  for (AxisModel& axis : chart.axes) {
    axis.hidden = true;
    axis.majorGridlines.reset();
    axis.minorGridlines.reset();
  }
}

/// Adds notes about fills and effects that aren't drawn.
void NoteMissingLooks(Canvas& canvas, xlsx::ChartPart& part, const RareLooks& looks) {
  const auto isMissing = [&](pugi::xml_node node) { return !IsDrawableImage(Palette(part).Picture(node)); };
  if (std::any_of(looks.pictures.begin(), looks.pictures.end(), isMissing)) {
    canvas.Note(
        "A picture isn't drawn as a fill because it isn't PNG or is too large; the automatic colour "
        "replaces it.");
  }
  for (std::string& sentence : MissingEffects(looks)) canvas.Note(std::move(sentence));
}

/// Adds notes about elements of a chart that aren't drawn.
void NoteMissing(Canvas& canvas, const ChartModel& chart) {
  const auto has = [](pugi::xml_node node, std::string_view local) {
    return bool(xlsx::xml::Child(node, local));
  };
  if (chart.chartArea.shadow) {
    canvas.Note("The shadow of the chart area isn't drawn because it is outside of the picture.");
  }
  for (const GroupModel& group : chart.groups) {
    const bool hasShadows = std::any_of(group.series.begin(), group.series.end(),
                                        [](const SeriesModel& series) { return series.HasShadows(); });
    if (group.is3D && hasShadows) canvas.Note("Shadows of bodies in 3-D aren't drawn.");
    if (has(group.node, "upDownBars") && !group.upDownBars) {
      canvas.Note("Up/down bars are only drawn between lines.");
    }
    for (const SeriesModel& series : group.series) {
      if (has(series.node, "trendline") && !group.CanHaveTrendlines()) {
        canvas.Note("Trendlines aren't drawn in a chart of this type.");
      }
      if (has(series.node, "errBars") && !group.CanHaveErrorBars()) {
        canvas.Note("Error bars aren't drawn in a chart of this type.");
      }
    }
  }
}

void DrawPlot(Plot& plot, const ChartLayout& layout) {
  const ChartModel& chart = plot.chart;
  if (chart.groups.empty()) return;  // A chart without data doesn't show its plot area.
  AddFrame(plot.canvas, {Role::kPlotArea}, plot.area, chart.plotArea);
  for (const AxisModel& axis : chart.axes) DrawGridlines(plot.canvas, chart, axis, plot.area);
  for (const GroupModel& group : chart.groups) DrawGroup(plot, group);
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    DrawAxisLine(plot.canvas, chart, chart.axes[i], plot.area);
    DrawTickLabels(plot.canvas, chart, chart.axes[i], layout.axes[i].labels, plot.area);
  }
  if (layout.table) DrawTable(plot.canvas, chart, *layout.table);
}

void DrawTitle(Canvas& canvas, Tag tag, const PlacedTitle& placed, const ShapeStyle& style) {
  AddTextFrame(canvas, tag, placed.box, style);
  DrawBlock(canvas, tag, placed.block, placed.box.Center());
}

void DrawTitles(Canvas& canvas, const ChartModel& chart, const ChartLayout& layout) {
  if (layout.title) DrawTitle(canvas, {Role::kTitle}, *layout.title, chart.title->style);
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    const AxisModel& axis = chart.axes[i];
    const AxisLayout& placed = layout.axes[i];
    if (placed.title) DrawTitle(canvas, {Role::kAxisTitle, axis.number}, *placed.title, axis.title->style);
    if (placed.units)
      DrawTitle(canvas, {Role::kDisplayUnits, axis.number}, *placed.units, axis.units.label->style);
  }
}

}  // namespace

UndrawnChart::UndrawnChart(xlsx::ChartPart& part, double width, double height, Notes& notes)
    : part_(&part), width_(width), height_(height), chart_(std::make_unique<ChartModel>()) {
  part.Theme();  // The theme is read at its first use, which only one thread may do.
  *chart_ = ReadChart(part, notes);
  HideAxesWithoutGroups(*chart_);
  looks_ = std::make_unique<RareLooks>(FindRareLooks(part.Space()));
}

UndrawnChart::UndrawnChart(UndrawnChart&&) noexcept = default;
UndrawnChart& UndrawnChart::operator=(UndrawnChart&&) noexcept = default;
UndrawnChart::~UndrawnChart() = default;

bool UndrawnChart::NeedsWorkbook() const {
  return !looks_->pictures.empty() || xlsx::xml::Child(part_->Space(), "userShapes");
}

Drawing UndrawnChart::Draw(const TextMeasure& measure, Notes& notes) && {
  ChartModel& chart = *chart_;
  xlsx::ChartPart& part = *part_;
  Drawing drawing;
  drawing.width = width_;
  drawing.height = height_;
  Canvas canvas(drawing, measure, notes);
  DrawChartArea(canvas, chart);
  const ChartLayout layout = LayOutChart(chart, canvas.Bounds(), measure);
  Plot plot{chart, layout.plot, canvas};
  if (!DrawPlot3D(part, plot, layout.outer)) DrawPlot(plot, layout);
  DrawDataLabels(plot);
  DrawTitles(canvas, chart, layout);
  if (layout.legend) DrawLegend(canvas, chart, *layout.legend);
  DrawUserShapes(part, canvas);
  NoteMissing(canvas, chart);
  NoteMissingLooks(canvas, part, *looks_);
  Describe(chart, drawing);
  return drawing;
}

Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes) {
  return UndrawnChart(part, width, height, notes).Draw(measure, notes);
}

}  // namespace plotsmith::render
