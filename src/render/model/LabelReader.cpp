#include <string>

#include "render/model/ChartReader.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/SeriesLabels.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

/// Reads the settings of the labels of a series (c:dLbls) or of a point (c:dLbl). Missing settings are those
/// of `base`.
LabelModel ReadLabel(ReadingContext& context, pugi::xml_node node, const LabelModel& base) {
  LabelModel label = base;
  label.showsValue = schema::BooleanVal(node, "showVal", base.showsValue);
  label.showsPercent = schema::BooleanVal(node, "showPercent", base.showsPercent);
  label.showsCategory = schema::BooleanVal(node, "showCatName", base.showsCategory);
  label.showsSeries = schema::BooleanVal(node, "showSerName", base.showsSeries);
  label.showsBubbleSize = schema::BooleanVal(node, "showBubbleSize", base.showsBubbleSize);
  label.showsKey = schema::BooleanVal(node, "showLegendKey", base.showsKey);
  if (const auto separator = xml::Child(node, "separator")) label.separator = xml::Text(separator);
  label.position = schema::Val(node, "dLblPos", base.position);
  if (const auto format = xml::Child(node, "numFmt")) {
    const bool linked = xml::BooleanAttribute(format, "sourceLinked", false);
    label.format = linked ? nullptr : context.Format(xml::Attribute(format, "formatCode"));
  }
  if (xml::Child(node, "txPr")) label.text = ReadTextStyle(context.part, node, xlsx::TextRole::kOther);
  label.style = ReadStyle(context.part, xml::Child(node, "spPr"), base.style);
  if (const auto layout = ReadLayout(node)) label.layout = layout;
  if (xml::Child(node, "tx")) {
    label.own = ReadText(context.part, node, xlsx::TextRole::kOther, {});
    if (!label.own.rotation) label.own.rotation = label.text.rotation;
  }
  return label;
}

}  // namespace

LabelsModel ReadLabels(ReadingContext& context, pugi::xml_node series, const std::string& position) {
  LabelsModel labels;
  const auto node = xlsx::FindLabels(series);
  if (!node || schema::BooleanVal(node, "delete", false)) return labels;
  LabelModel base;
  base.position = position;
  base.text = ReadTextStyle(context.part, node, xlsx::TextRole::kOther);
  labels.common = ReadLabel(context, node, base);
  for (const pugi::xml_node& point : xml::Children(node, "dLbl")) {
    const long long number = schema::NumberOf(point);
    if (number < 0) continue;
    const auto index = static_cast<std::size_t>(number);
    if (schema::BooleanVal(point, "delete", false)) {
      labels.deleted.insert(index);
    } else {
      labels.points[index] = ReadLabel(context, point, labels.common);
    }
  }
  labels.leaderLines = schema::BooleanVal(node, "showLeaderLines", false);
  labels.leaderStroke =
      ReadStroke(context.part, xml::Child(node, "leaderLines", "spPr", "ln"), context.styles.AxisLine());
  return labels;
}

}  // namespace plotsmith::render
