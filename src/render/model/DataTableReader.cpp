#include <algorithm>

#include "render/model/ChartReader.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

/// Returns the index of the horizontal category axis below which a table can be; -1 if the chart has none.
int FindTableAxis(const ChartModel& chart) {
  for (const GroupModel& group : chart.groups) {
    const bool hasColumns = group.family == Family::kArea || group.family == Family::kBar ||
                            group.family == Family::kLine || group.family == Family::kStock;
    if (!hasColumns || group.is3D || group.category < 0) continue;
    const AxisModel& axis = chart.axes[static_cast<std::size_t>(group.category)];
    if (!axis.IsUpright() && !axis.dates && !axis.IsOfValues()) return group.category;
  }
  return -1;
}

}  // namespace

void ReadDataTable(ReadingContext& context, pugi::xml_node plotArea, ChartModel& chart) {
  const auto node = xml::Child(plotArea, "dTable");
  if (!node) return;
  const int axis = FindTableAxis(chart);
  if (axis < 0) {
    context.notes.push_back(
        "The data table isn't drawn because the chart has no horizontal category axis or is in 3-D.");
    return;
  }
  DataTable table;
  table.axis = axis;
  table.horizontalLines = schema::BooleanVal(node, "showHorzBorder", false);
  table.verticalLines = schema::BooleanVal(node, "showVertBorder", false);
  table.outline = schema::BooleanVal(node, "showOutline", false);
  table.keys = schema::BooleanVal(node, "showKeys", false);
  table.stroke = ReadStroke(context.part, xml::Child(node, "spPr", "ln"), context.styles.AxisLine());
  table.text = ReadTextStyle(context.part, node, xlsx::TextRole::kOther);
  // The first row of the table replaces the labels, and each value is in the middle of its column.
  AxisModel& categories = chart.axes[static_cast<std::size_t>(axis)];
  table.tickLabels = categories.tickLabels;
  table.crossesBetween = categories.crossesBetween;
  chart.table = table;
  categories.tickLabels = "none";
  categories.crossesBetween = true;
}

}  // namespace plotsmith::render
