#include "xlsx/chart/objects/DataLabels.h"

#include <string>

#include "host/excel/Constants.h"
#include "host/excel/DataLabel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/chart/objects/ChartFont.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/chart/rules/ChartTextLook.h"
#include "xlsx/chart/rules/ChartTypeRules.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/chart/rules/SeriesLabels.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/ShapeEnumerations.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

/// Returns the labels of a series and those of its single points, which repeat all settings.
std::vector<pugi::xml_node> AllOf(pugi::xml_node labels) {
  std::vector<pugi::xml_node> all = {labels};
  for (const pugi::xml_node& label : xml::Children(labels, "dLbl")) {
    if (!schema::BooleanVal(label, "delete", false)) all.push_back(label);
  }
  return all;
}

/// Repeats the format of a label in each run of its own text, because these runs don't inherit it.
void FormatRuns(pugi::xml_node label) {
  for (const pugi::xml_node& paragraph : xml::Children(xml::Child(label, "tx", "rich"), "p")) {
    const auto defaults = xml::Child(paragraph, "pPr", "defRPr");
    for (const pugi::xml_node& run : xml::Children(paragraph, "r")) {
      const pugi::xml_node properties = schema::Ensure(run, "rPr");
      for (const pugi::xml_attribute& attribute : defaults.attributes()) {
        xml::SetAttribute(properties, attribute.name(), xml::Decode(attribute.value()));
      }
      for (const pugi::xml_node& child : defaults.children()) schema::InsertCopy(properties, child);
    }
  }
}

class DataLabelObject final : public excel::DataLabel {
 public:
  DataLabelObject(SeriesHandle series, std::int32_t index) : series_(std::move(series)), index_(index) {}

  void SetText(std::string_view text) override {
    series_.Log().Put([this] { return series_.Path() + ".DataLabels(" + std::to_string(index_) + ")"; },
                      "Text", text);
    const pugi::xml_node label = EnsurePointLabel(EnsureLabels(series_.Node()), index_ - 1);
    const bool fresh = !xml::Child(label, "tx", "rich");
    SetTitleText(label, text);
    if (fresh) FormatRuns(label);
    // A label that shows nothing doesn't show its own text.
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
  /// The file doesn't store this; it is Excel's default.
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

}  // namespace plotsmith::xlsx
