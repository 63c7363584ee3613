#include "xlsx/chart/rules/SeriesLabels.h"

#include <algorithm>
#include <array>

#include "host/excel/Constants.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

// The members of XlDataLabelsType that the port has no name for.
constexpr std::int32_t xlDataLabelsShowNone = -4142, xlDataLabelsShowLabel = 4;
constexpr std::int32_t xlDataLabelsShowLabelAndPercent = 5, xlDataLabelsShowBubbleSizes = 6;

/// The items that labels of each type show.
struct LabelType {
  std::int32_t number;  ///< XlDataLabelsType
  bool value = false, percent = false, category = false;
};
constexpr std::array<LabelType, 5> kLabelTypes = {{
    {.number = xlDataLabelsShowNone},
    {.number = excel::xlDataLabelsShowValue, .value = true},
    {.number = excel::xlDataLabelsShowPercent, .percent = true},
    {.number = xlDataLabelsShowLabel, .category = true},
    {.number = xlDataLabelsShowLabelAndPercent, .percent = true, .category = true},
}};
constexpr std::array<const char*, 6> kShown = {"showLegendKey", "showVal",     "showCatName",
                                               "showSerName",   "showPercent", "showBubbleSize"};
/// Elements of a series' labels that the file repeats in each point's label.
constexpr std::array<const char*, 5> kRepeated = {"numFmt", "spPr", "txPr", "dLblPos", "separator"};

/// Returns the labels that the series of a group have in common, or a null node. Their element comes after
/// the series, so the search begins at the end. From the front, each search would pass all series.
pugi::xml_node CommonLabels(pugi::xml_node group) {
  for (pugi::xml_node child = group.last_child(); child; child = child.previous_sibling()) {
    if (xml::Is(child, "dLbls")) return child;
    if (xml::Is(child, "ser")) break;
  }
  return {};
}

}  // namespace

pugi::xml_node FindLabels(pugi::xml_node series) {
  const auto own = xml::Child(series, "dLbls");
  return own ? own : CommonLabels(series.parent());
}

pugi::xml_node EnsureLabels(pugi::xml_node series) {
  if (const auto own = xml::Child(series, "dLbls")) return own;
  const auto common = CommonLabels(series.parent());
  return common ? schema::InsertCopy(series, common) : schema::Ensure(series, "dLbls");
}

bool ShowsAnything(pugi::xml_node labels) {
  if (!labels || schema::BooleanVal(labels, "delete", false)) return false;
  return std::any_of(kShown.begin(), kShown.end(),
                     [&](const char* what) { return schema::BooleanVal(labels, what, false); });
}

bool HasLabels(pugi::xml_node labels) {
  const auto points = xml::Children(labels, "dLbl");
  return ShowsAnything(labels) || std::any_of(points.begin(), points.end(), ShowsAnything);
}

bool ShowLabels(pugi::xml_node labels, std::int32_t type) {
  const auto wanted = std::find_if(kLabelTypes.begin(), kLabelTypes.end(),
                                   [&](const LabelType& entry) { return entry.number == type; });
  if (wanted == kLabelTypes.end()) return false;
  const auto show = [&](const char* what, bool value) { schema::SetBooleanVal(labels, what, value); };
  schema::Remove(labels, "delete");
  show("showLegendKey", false);
  show("showVal", wanted->value);
  show("showCatName", wanted->category);
  show("showSerName", false);
  show("showPercent", wanted->percent);
  show("showBubbleSize", false);
  return true;
}

void SetLabels(pugi::xml_node series, bool shown) {
  if (shown) {
    const pugi::xml_node labels = EnsureLabels(series);
    if (!HasLabels(labels)) ShowLabels(labels, excel::xlDataLabelsShowValue);
    return;
  }
  schema::Remove(series, "dLbls");
  if (ShowsAnything(FindLabels(series))) schema::SetVal(schema::Ensure(series, "dLbls"), "delete", "1");
}

Variant TypeOfLabels(pugi::xml_node labels) {
  if (!ShowsAnything(labels)) {
    for (const pugi::xml_node& point : xml::Children(labels, "dLbl")) {
      if (ShowsAnything(point)) return TypeOfLabels(point);
    }
    return xlDataLabelsShowNone;
  }
  const auto shows = [&](const char* what) { return schema::BooleanVal(labels, what, false); };
  if (shows("showVal")) return excel::xlDataLabelsShowValue;
  for (const LabelType& type : kLabelTypes) {
    if (!type.value && type.percent == shows("showPercent") && type.category == shows("showCatName") &&
        (type.percent || type.category)) {
      return type.number;
    }
  }
  return shows("showBubbleSize") ? Variant(xlDataLabelsShowBubbleSizes) : runtime::kNull;
}

pugi::xml_node EnsurePointLabel(pugi::xml_node labels, long long number) {
  const auto present = schema::FindNumbered(labels, "dLbl", number);
  if (present && !schema::BooleanVal(present, "delete", false)) return present;
  const pugi::xml_node label = schema::EnsureNumbered(labels, "dLbl", number);
  schema::Remove(label, "delete");
  schema::Ensure(label, "layout");
  for (const char* repeated : kRepeated) {
    if (const auto node = xml::Child(labels, repeated)) schema::InsertCopy(label, node);
  }
  for (const char* what : kShown) {
    schema::SetBooleanVal(label, what, schema::BooleanVal(labels, what, false));
  }
  return label;
}

}  // namespace plotsmith::xlsx
