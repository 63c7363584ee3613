#include "xlsx/chart/rules/ChartTextLook.h"

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/AutomaticColors.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

// Excel's default text sizes.
constexpr double kPoints = 10;
constexpr double kTitlePoints = 18;
constexpr double kTitleGrowth = 1.2;  // multiplies the chart's own text size, if it has one

/// Text properties in order of precedence. Null nodes are skipped.
using Chain = std::vector<pugi::xml_node>;

pugi::xml_node DefaultsOf(pugi::xml_node paragraph) { return xml::Child(paragraph, "pPr", "defRPr"); }

/// Returns the default properties of a body (c:txPr, c:rich).
pugi::xml_node DefaultsOfBody(pugi::xml_node body) { return DefaultsOf(xml::Child(body, "p")); }

std::string AttributeOf(const Chain& chain, const char* name) {
  for (const pugi::xml_node& properties : chain) {
    if (const auto value = xml::FindAttribute(properties, name)) return *value;
  }
  return {};
}

TextLook Look(ChartPart& part, Chain chain, TextRole role) {
  const auto chart = DefaultsOfBody(xml::Child(part.Space(), "txPr"));
  const auto pointsOf = [](const std::string& hundredths) {
    return xml::ParseDouble(hundredths).value_or(0) / 100;
  };
  TextLook look;
  look.points = pointsOf(AttributeOf(chain, "sz"));
  if (look.points <= 0) {
    const double base = pointsOf(xml::Attribute(chart, "sz"));
    if (role == TextRole::kChartTitle) {
      look.points = base > 0 ? base * kTitleGrowth : kTitlePoints;
    } else {
      look.points = base > 0 ? base : kPoints;
    }
  }
  const bool title = role != TextRole::kOther;
  if (!title) chain.push_back(chart);
  look.bold = xml::ParseBoolean(AttributeOf(chain, "b")).value_or(title);
  if (title) chain.push_back(chart);
  look.italic = xml::ParseBoolean(AttributeOf(chain, "i")).value_or(false);

  const std::string underline = AttributeOf(chain, "u");
  look.underline = !underline.empty() && underline != "none";

  look.typeface = part.Theme().MinorFont();
  for (const pugi::xml_node& properties : chain) {
    const std::string typeface = xml::Attribute(xml::Child(properties, "latin"), "typeface");
    if (typeface.empty()) continue;
    look.typeface = part.Theme().Typeface(typeface);
    break;
  }
  look.color = AutomaticTextColor(part);
  for (const pugi::xml_node& properties : chain) {
    const auto fill = FindFill(properties);
    if (!fill) continue;
    if (const auto color = part.Color(fill)) look.color = *color;
    break;
  }
  return look;
}

/// Adds the formats of a body's runs. `behind` are the properties that a run falls back to.
void AddRuns(ChartPart& part, pugi::xml_node body, const Chain& behind, TextRole role,
             std::vector<TextLook>& looks) {
  for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
    for (const pugi::xml_node& run : paragraph.children()) {
      const bool text = xml::Is(run, "r") || xml::Is(run, "fld");
      if (!text || xml::Text(xml::Child(run, "t")).empty()) continue;
      Chain chain = {xml::Child(run, "rPr"), DefaultsOf(paragraph)};
      chain.insert(chain.end(), behind.begin(), behind.end());
      looks.push_back(Look(part, std::move(chain), role));
    }
  }
}

}  // namespace

std::vector<TextLook> LooksOf(ChartPart& part, pugi::xml_node element, TextRole role) {
  const auto own = DefaultsOfBody(xml::Child(element, "txPr"));
  const auto rich = xml::Child(element, "tx", "rich");
  std::vector<TextLook> looks;
  AddRuns(part, rich, {own}, role, looks);
  if (looks.empty()) looks.push_back(Look(part, {DefaultsOfBody(rich), own}, role));
  return looks;
}

TextLook LookOfRun(ChartPart& part, pugi::xml_node element, pugi::xml_node paragraph,
                   pugi::xml_node properties, TextRole role) {
  return Look(part, {properties, DefaultsOf(paragraph), DefaultsOfBody(xml::Child(element, "txPr"))}, role);
}

std::vector<TextLook> LooksOfLegend(ChartPart& part, pugi::xml_node legend) {
  const auto own = DefaultsOfBody(xml::Child(legend, "txPr"));
  std::vector<TextLook> looks = {Look(part, {own}, TextRole::kOther)};
  for (const pugi::xml_node& entry : xml::Children(legend, "legendEntry")) {
    if (schema::BooleanVal(entry, "delete", false)) continue;
    const auto defaults = DefaultsOfBody(xml::Child(entry, "txPr"));
    if (defaults) looks.push_back(Look(part, {defaults, own}, TextRole::kOther));
  }
  return looks;
}

std::vector<TextLook> LooksOfLabels(ChartPart& part, pugi::xml_node labels, std::size_t points) {
  const auto own = DefaultsOfBody(xml::Child(labels, "txPr"));
  std::vector<TextLook> looks;
  std::size_t special = 0;
  for (const pugi::xml_node& label : xml::Children(labels, "dLbl")) {
    ++special;
    if (schema::BooleanVal(label, "delete", false)) continue;
    const auto defaults = DefaultsOfBody(xml::Child(label, "txPr"));
    const auto rich = xml::Child(label, "tx", "rich");
    const std::size_t before = looks.size();
    AddRuns(part, rich, {defaults, own}, TextRole::kOther, looks);
    if (looks.size() == before) looks.push_back(Look(part, {defaults, own}, TextRole::kOther));
  }
  // The common format counts unless every point has its own label.
  if (special < points || looks.empty()) looks.push_back(Look(part, {own}, TextRole::kOther));
  return looks;
}

}  // namespace plotsmith::xlsx
