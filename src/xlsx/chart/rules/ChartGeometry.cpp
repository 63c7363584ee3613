#include "xlsx/chart/rules/ChartGeometry.h"

#include <algorithm>

#include "xlsx/base/Errors.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/AutomaticLayout.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// Applies one direction of a manual layout. The mode `factor` counts from the automatic position.
void Apply(pugi::xml_node layout, const char* place, const char* placeMode, const char* size,
           const char* sizeMode, double chart, double& from, double& extent) {
  if (const auto at = schema::NumberVal(layout, place)) {
    from = schema::Val(layout, placeMode, "factor") == "edge" ? *at * chart : from + *at * chart;
  }
  if (const auto length = schema::NumberVal(layout, size)) {
    extent = schema::Val(layout, sizeMode, "factor") == "edge" ? *length * chart - from : *length * chart;
  }
}

}  // namespace

Frame PlotAreaFrame(ChartPart& part, const Frame& chart) {
  Frame area = AutomaticPlotArea(part, chart);
  const auto layout = xml::Child(part.PlotArea(), "layout", "manualLayout");
  if (!layout) return area;
  const bool inner = schema::Val(layout, "layoutTarget", "outer") == "inner";
  const Edges labels = inner ? TickLabelRoom(part) : Edges();
  area = {area.left + labels.left, area.top + labels.top, area.width - labels.left - labels.right,
          area.height - labels.top - labels.bottom};
  Apply(layout, "x", "xMode", "w", "wMode", chart.width, area.left, area.width);
  Apply(layout, "y", "yMode", "h", "hMode", chart.height, area.top, area.height);
  return {area.left - labels.left, area.top - labels.top, area.width + labels.left + labels.right,
          area.height + labels.top + labels.bottom};
}

void SetPlotAreaWidth(ChartPart& part, const Frame& chart, double width) {
  if (!(width > 0)) throw CantSet("Width", "PlotArea");
  const Frame area = PlotAreaFrame(part, chart);
  const double widest = chart.width - kChartInset - area.left;
  if (widest > 0) width = std::min(width, widest);
  const pugi::xml_node holder = schema::Ensure(part.PlotArea(), "layout");
  schema::Remove(holder, "manualLayout");
  const pugi::xml_node layout = schema::Ensure(holder, "manualLayout");
  schema::SetVal(layout, "layoutTarget", "outer");
  schema::SetVal(layout, "xMode", "edge");
  schema::SetVal(layout, "yMode", "edge");
  schema::SetVal(layout, "x", xml::Number(area.left / chart.width));
  schema::SetVal(layout, "y", xml::Number(area.top / chart.height));
  schema::SetVal(layout, "w", xml::Number(width / chart.width));
  schema::SetVal(layout, "h", xml::Number(area.height / chart.height));
  part.MarkChanged();
}

}  // namespace plotsmith::xlsx
