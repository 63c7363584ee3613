#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "render/model/ChartReader.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

struct BuiltInUnit {
  std::string_view name;
  double factor;
  const char* label;
};
constexpr std::array<BuiltInUnit, 9> kUnits = {{{"hundreds", 1e2, "Hundreds"},
                                                {"thousands", 1e3, "Thousands"},
                                                {"tenThousands", 1e4, "x 10000"},
                                                {"hundredThousands", 1e5, "x 100000"},
                                                {"millions", 1e6, "Millions"},
                                                {"tenMillions", 1e7, "x 10000000"},
                                                {"hundredMillions", 1e8, "x 100000000"},
                                                {"billions", 1e9, "Billions"},
                                                {"trillions", 1e12, "Trillions"}}};

DisplayUnits ReadUnits(ReadingContext& context, pugi::xml_node axis) {
  DisplayUnits units;
  const auto node = xml::Child(axis, "dispUnits");
  std::string label;
  const std::string name = schema::Val(node, "builtInUnit");
  for (const BuiltInUnit& unit : kUnits) {
    if (unit.name != name) continue;
    units.factor = unit.factor;
    label = unit.label;
  }
  const auto custom = schema::NumberVal(node, "custUnit");
  if (custom && std::isfinite(*custom) && *custom > 0) {
    units.factor = *custom;
    label = "x " + xml::Number(*custom);
  }
  if (const auto title = xml::Child(node, "dispUnitsLbl")) {
    units.label = ReadTitle(context, title, xlsx::TextRole::kAxisTitle, label);
  }
  return units;
}

AxisKind KindOf(pugi::xml_node axis) {
  if (xml::Is(axis, "valAx")) return AxisKind::kValue;
  if (xml::Is(axis, "dateAx")) return AxisKind::kDate;
  return xml::Is(axis, "serAx") ? AxisKind::kSeries : AxisKind::kCategory;
}

Side SideOf(pugi::xml_node axis) {
  const std::string side = schema::Val(axis, "axPos", xml::Is(axis, "valAx") ? "l" : "b");
  if (side == "l") return Side::kLeft;
  if (side == "r") return Side::kRight;
  return side == "t" ? Side::kTop : Side::kBottom;
}

/// Reads the line of an axis and its gridlines.
void ReadLines(ReadingContext& context, pugi::xml_node node, AxisModel& axis) {
  const Stroke automatic = context.styles.AxisLine();
  axis.line = ReadStroke(context.part, xml::Child(node, "spPr", "ln"), automatic);
  if (const auto lines = xml::Child(node, "majorGridlines")) {
    axis.majorGridlines = ReadStroke(context.part, xml::Child(lines, "spPr", "ln"), automatic);
  }
  if (const auto lines = xml::Child(node, "minorGridlines")) {
    axis.minorGridlines =
        ReadStroke(context.part, xml::Child(lines, "spPr", "ln"), context.styles.MinorGridline());
  }
}

}  // namespace

TitleModel ReadTitle(ReadingContext& context, pugi::xml_node title, xlsx::TextRole role,
                     const std::string& automatic) {
  return {ReadText(context.part, title, role, automatic),
          ReadStyle(context.part, xml::Child(title, "spPr"), {}), ReadLayout(title),
          schema::BooleanVal(title, "overlay", false)};
}

AxisModel ReadAxis(ReadingContext& context, pugi::xml_node node) {
  AxisModel axis;
  axis.node = node;
  axis.kind = KindOf(node);
  axis.side = SideOf(node);
  axis.hidden = schema::BooleanVal(node, "delete", false);
  const auto scaling = xml::Child(node, "scaling");
  axis.reversed = schema::Val(scaling, "orientation", "minMax") == "maxMin";
  constexpr double kLeastBase = 2, kMostBase = 1000;
  const auto base = schema::NumberVal(scaling, "logBase");
  if (base && std::isfinite(*base)) axis.logBase = std::clamp(*base, kLeastBase, kMostBase);
  const auto positive = [&](const char* name) -> std::optional<double> {
    const auto number = schema::NumberVal(node, name);
    return number && std::isfinite(*number) && *number > 0 ? number : std::nullopt;
  };
  axis.minorUnit = positive("minorUnit");
  const auto format = xml::Child(node, "numFmt");
  if (format && !xml::BooleanAttribute(format, "sourceLinked", false)) {
    axis.format = context.Format(xml::Attribute(format, "formatCode"));
  }
  axis.tickLabels = schema::Val(node, "tickLblPos", "nextTo");
  axis.majorTicks = schema::Val(node, "majorTickMark", "out");
  axis.minorTicks = schema::Val(node, "minorTickMark", "none");
  ReadLines(context, node, axis);
  if (const auto title = xml::Child(node, "title")) {
    axis.title = ReadTitle(context, title, xlsx::TextRole::kAxisTitle, "Axis Title");
  }
  axis.text = ReadTextStyle(context.part, node, xlsx::TextRole::kOther);
  axis.crosses = schema::Val(node, "crosses", "autoZero");
  const auto at = schema::NumberVal(node, "crossesAt");
  if (at && std::isfinite(*at)) axis.crossesAt = at;
  axis.labelSkip = std::max(schema::IntegerVal(node, "tickLblSkip", 0), 0LL);
  axis.tickSkip = std::max(schema::IntegerVal(node, "tickMarkSkip", 1), 1LL);
  axis.units = ReadUnits(context, node);
  return axis;
}

}  // namespace plotsmith::render
