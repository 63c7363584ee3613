#include "render/ChartDrawing.h"

#include "render/Canvas.h"
#include "render/families/Plot.h"
#include "render/model/ChartReader.h"
#include "render/threed/Pie3D.h"
#include "render/threed/Plot3D.h"
#include "xlsx/chart/ChartGeometry.h"
#include "xlsx/chart/ChartPart.h"

namespace plotsmith::render {
namespace {

void DrawChartArea(Canvas& canvas, const ChartModel& chart) {
  const double inset = chart.chartArea.stroke.width / 2;
  canvas.Add({Role::kChartArea}, Path().AddRect(Inset(canvas.Bounds(), inset, inset)), chart.chartArea.fill,
             chart.chartArea.stroke);
}

}  // namespace

Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes) {
  const ChartModel chart = ReadChart(part, notes);
  Drawing drawing;
  drawing.width = width;
  drawing.height = height;
  Canvas canvas(drawing, measure, notes);
  DrawChartArea(canvas, chart);
  const xlsx::Frame frame = xlsx::PlotAreaFrame(part, {0, 0, width, height});
  Plot plot{chart, {frame.left, frame.top, frame.width, frame.height}, canvas};
  if (chart.Is3D() && DrawPlot3D(part, plot)) return drawing;
  if (!chart.groups.empty() && chart.groups.front().family == Family::kPie && chart.groups.front().is3D) {
    DrawPie3D(part, plot, chart.groups.front());
    return drawing;
  }
  canvas.Add({Role::kPlotArea}, Path().AddRect(plot.area), chart.plotArea.fill, chart.plotArea.stroke);
  canvas.PushClip(Path().AddRect(plot.area));
  for (const GroupModel& group : chart.groups) {
    if (group.family == Family::kBar) DrawBars(plot, group);
  }
  canvas.PopClip();
  return drawing;
}

}  // namespace plotsmith::render
