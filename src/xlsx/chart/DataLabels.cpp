#include "xlsx/chart/DataLabels.h"

#include <algorithm>
#include <array>
#include <string>

#include "host/excel/Constants.h"
#include "host/excel/DataLabel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/chart/ChartCache.h"
#include "xlsx/chart/ChartEnumerations.h"
#include "xlsx/chart/ChartFont.h"
#include "xlsx/chart/ChartText.h"
#include "xlsx/chart/ChartTextLook.h"
#include "xlsx/chart/ChartTypeRules.h"
#include "xlsx/chart/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/ShapeEnumerations.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

// XlDataLabelsType, as far as the system doesn't know it.
constexpr std::int32_t xlDataLabelsShowNone = -4142, xlDataLabelsShowLabel = 4;
constexpr std::int32_t xlDataLabelsShowLabelAndPercent = 5, xlDataLabelsShowBubbleSizes = 6;

/// What labels of each type show.
struct LabelType {
  std::int32_t number;
  bool value, percent, category;
};
constexpr std::array<LabelType, 5> kLabelTypes = {{
    {xlDataLabelsShowNone, false, false, false},
    {excel::xlDataLabelsShowValue, true, false, false},
    {excel::xlDataLabelsShowPercent, false, true, false},
    {xlDataLabelsShowLabel, false, false, true},
    {xlDataLabelsShowLabelAndPercent, false, true, true},
}};
constexpr std::array<const char*, 6> kShown = {"showLegendKey", "showVal",     "showCatName",
                                               "showSerName",   "showPercent", "showBubbleSize"};
/// What a label with a text of its own repeats of its series' labels, as the file has it.
constexpr std::array<const char*, 5> kRepeated = {"numFmt", "spPr", "txPr", "dLblPos", "separator"};

/// What the labels show, where that is one of the types. What shows more than one thing counts by its value,
/// then by its percentage: of all it shows, those two can be drawn again.
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

/// The labels of a series and those of single points, which are told everything again.
std::vector<pugi::xml_node> AllOf(pugi::xml_node labels) {
  std::vector<pugi::xml_node> all = {labels};
  for (const pugi::xml_node& label : xml::Children(labels, "dLbl")) {
    if (!schema::BooleanVal(label, "delete", false)) all.push_back(label);
  }
  return all;
}

/// The label of a point, from 0, which looks like the others until it is told otherwise.
pugi::xml_node EnsureLabel(pugi::xml_node labels, long long number) {
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

/// A text of its own takes nothing from the label's defaults unless each run says so.
void DressRuns(pugi::xml_node label) {
  for (const pugi::xml_node& paragraph : xml::Children(xml::Child(label, "tx", "rich"), "p")) {
    const auto dress = xml::Child(paragraph, "pPr", "defRPr");
    for (const pugi::xml_node& run : xml::Children(paragraph, "r")) {
      const pugi::xml_node properties = schema::Ensure(run, "rPr");
      for (const pugi::xml_attribute& attribute : dress.attributes()) {
        xml::SetAttribute(properties, attribute.name(), xml::Decode(attribute.value()));
      }
      for (const pugi::xml_node& child : dress.children()) schema::InsertCopy(properties, child);
    }
  }
}

class DataLabelObject final : public excel::DataLabel {
 public:
  DataLabelObject(SeriesHandle series, std::int32_t index) : series_(std::move(series)), index_(index) {}

  void SetText(std::string_view text) override {
    series_.Log().Put([this] { return series_.Path() + ".DataLabels(" + std::to_string(index_) + ")"; },
                      "Text", text);
    const pugi::xml_node label = EnsureLabel(EnsureLabels(series_.Node()), index_ - 1);
    const bool fresh = !xml::Child(label, "tx", "rich");
    SetTitleText(label, text);
    if (fresh) DressRuns(label);
    // a label that shows nothing doesn't show a text either
    if (!ShowsAnything(label)) schema::SetVal(label, "showVal", "1");
    series_.part->MarkChanged();
  }

 private:
  SeriesHandle series_;
  std::int32_t index_;
};

class DataLabelsObject final : public excel::DataLabels {
 public:
  explicit DataLabelsObject(SeriesHandle series) : series_(std::move(series)) {}

  Ref<excel::Font> Font() override {
    return MakeFont(
        *series_.part,
        [series = series_] {
          const auto node = series.Node();
          return LooksOfLabels(*series.part, FindLabels(node), PointCount(FindValues(node)));
        },
        [series = series_] { return EnsureLabels(series.Node()); }, Path() + ".Font");
  }
  /// Not in the file; Excel's default.
  Variant AutoScaleFont() override { return true; }
  void SetAutoScaleFont(const Variant& value) override { Log("AutoScaleFont", value); }

  Variant Type() override { return TypeOfLabels(FindLabels(series_.Node())); }
  void SetPosition(std::int32_t position) override {
    Log("Position", position);
    const auto token = kLabelPositions.Token(position);
    const pugi::xml_node node = series_.Node();
    if (!token || !AllowsLabelPosition(node.parent(), *token)) throw CantSet("Position", "DataLabels");
    for (const pugi::xml_node& labels : AllOf(EnsureLabels(node))) {
      schema::SetVal(labels, "dLblPos", *token);
    }
    series_.part->MarkChanged();
  }

  void SetHorizontalAlignment(std::int32_t alignment) override {
    Log("HorizontalAlignment", alignment);
    const auto token = kHorizontalAlignments.Token(alignment);
    if (!token) throw CantSet("HorizontalAlignment", "DataLabels");
    ForEachBody([&](pugi::xml_node body) {
      for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
        xml::SetAttribute(schema::Ensure(paragraph, "pPr"), "algn", *token);
      }
    });
  }
  void SetVerticalAlignment(std::int32_t alignment) override {
    Log("VerticalAlignment", alignment);
    const auto token = kVerticalAlignments.Token(alignment);
    if (!token) throw CantSet("VerticalAlignment", "DataLabels");
    ForEachBody(
        [&](pugi::xml_node body) { xml::SetAttribute(schema::Ensure(body, "bodyPr"), "anchor", *token); });
  }
  void SetOrientation(std::int32_t orientation) override {
    Log("Orientation", orientation);
    ForEachBody([&](pugi::xml_node body) {
      if (!SetTextOrientation(body, orientation)) throw CantSet("Orientation", "DataLabels");
    });
  }

  std::int32_t Count() override { return static_cast<std::int32_t>(PointCount(FindValues(series_.Node()))); }
  Ref<excel::DataLabel> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw MethodFailed("Item", "DataLabels");
    return std::make_shared<DataLabelObject>(series_, index);
  }

 private:
  std::string Path() const { return series_.Path() + ".DataLabels"; }
  void Log(const char* property, const Variant& value) const {
    series_.Log().Put([this] { return Path(); }, property, value);
  }
  template <class Visit>
  void ForEachBody(const Visit& visit) {
    for (const pugi::xml_node& body : TextBodies(EnsureLabels(series_.Node()))) visit(body);
    series_.part->MarkChanged();
  }

  SeriesHandle series_;
};

}  // namespace

Ref<excel::DataLabels> MakeDataLabels(SeriesHandle series) {
  return std::make_shared<DataLabelsObject>(std::move(series));
}

pugi::xml_node FindLabels(pugi::xml_node series) {
  const auto own = xml::Child(series, "dLbls");
  return own ? own : xml::Child(series.parent(), "dLbls");
}

pugi::xml_node EnsureLabels(pugi::xml_node series) {
  if (const auto own = xml::Child(series, "dLbls")) return own;
  const auto common = xml::Child(series.parent(), "dLbls");
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

}  // namespace plotsmith::xlsx
