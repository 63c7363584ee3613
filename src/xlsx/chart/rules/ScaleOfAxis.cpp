#include "xlsx/chart/rules/ScaleOfAxis.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "runtime/Variant.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/rules/DataExtent.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

/// Adds the X values of a series to an extent. If they are texts, the numbers of the points replace them.
void AddXValues(pugi::xml_node series, DataExtent& extent) {
  const auto numbers = CachedNumbers(xml::Child(series, "xVal"));
  for (const Variant& number : numbers) {
    if (const double* value = number.If<double>()) extent.Add(*value);
  }
  if (!numbers.empty()) return;
  extent.Add(1);
  extent.Add(static_cast<double>(std::max<std::size_t>(PointCount(FindValues(series)), 1)));
}

/// Returns the cached values of a series; NaN for a missing one.
std::vector<double> ValuesOf(pugi::xml_node series) {
  std::vector<double> values;
  for (const Variant& number : CachedNumbers(FindValues(series))) {
    const double* value = number.If<double>();
    values.push_back(value == nullptr ? std::nan("") : *value);
  }
  return values;
}

void AddValues(pugi::xml_node group, DataExtent& extent) {
  const std::string grouping = schema::Val(group, "grouping");
  std::vector<std::vector<double>> series;
  for (const pugi::xml_node& each : xml::Children(group, "ser")) series.push_back(ValuesOf(each));
  if (grouping == "stacked" || grouping == "percentStacked") {
    const bool isBar = xml::Is(group, "barChart") || xml::Is(group, "bar3DChart");
    return AddStacks({series.begin(), series.end()}, {isBar, grouping == "percentStacked"}, extent);
  }
  for (const auto& values : series) {
    for (const double value : values) extent.Add(value);
  }
}

}  // namespace

AxisScale ScaleOf(ChartPart& part, pugi::xml_node axis) {
  DataExtent extent;
  bool isPercent = false, is3D = false;
  for (const pugi::xml_node& group : part.Groups()) {
    const auto axes = AxesOf(group);
    if (std::find(axes.begin(), axes.end(), axis) == axes.end()) continue;
    is3D |= xml::LocalName(group).find("3D") != std::string_view::npos;
    isPercent |= schema::Val(group, "grouping") == "percentStacked";
    if (axis == RolesOf(axes).x) {
      for (const pugi::xml_node& series : xml::Children(group, "ser")) AddXValues(series, extent);
    } else {
      AddValues(group, extent);
    }
  }
  return ScaleAxis(extent, SettingsOf(axis, !is3D && !isPercent));
}

}  // namespace plotsmith::xlsx
