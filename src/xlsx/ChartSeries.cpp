#include "xlsx/ChartSeries.h"

#include <algorithm>
#include <array>
#include <string>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "xlsx/ChartData.h"
#include "xlsx/ChartGroups.h"
#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/ChartText.h"
#include "xlsx/ChartTypes.h"
#include "xlsx/Enumerations.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

/// What labels of each type show (XlDataLabelsType).
struct LabelType {
  std::int32_t number;
  bool value, percent, category;
};
constexpr std::array<LabelType, 5> kLabelTypes = {{
    {-4142, false, false, false},  // xlDataLabelsShowNone
    {2, true, false, false},       // xlDataLabelsShowValue
    {3, false, true, false},       // xlDataLabelsShowPercent
    {4, false, false, true},       // xlDataLabelsShowLabel
    {5, false, true, true},        // xlDataLabelsShowLabelAndPercent
}};

/// A series element, which its chart may lose while somebody still holds the object.
struct SeriesHandle {
  std::shared_ptr<ChartPart> part;
  std::string order;  ///< the series' own number, by which it is found again

  pugi::xml_node Node() const {
    for (const pugi::xml_node& series : SeriesOf(*part)) {
      if (schema::Val(series, "order") == order) return series;
    }
    throw RuntimeError(runtime::error::kApplication, "Method of object 'Series' failed");
  }
  std::string Path() const {
    const auto all = SeriesOf(*part);
    const auto at = std::find_if(all.begin(), all.end(), [&](const pugi::xml_node& series) {
      return schema::Val(series, "order") == order;
    });
    return "Chart.SeriesCollection(" + std::to_string(at - all.begin() + 1) + ")";
  }
  const Journal& Log() const { return part->Book().Journal(); }
};

constexpr std::array<const char*, 6> kShown = {"showLegendKey", "showVal",     "showCatName",
                                               "showSerName",   "showPercent", "showBubbleSize"};

/// The labels of a series: its own, else those that its group has for all.
pugi::xml_node FindLabels(pugi::xml_node series) {
  const auto own = schema::Find(series, "dLbls");
  return own ? own : schema::Find(series.parent(), "dLbls");
}

/// Its own, which begin as the group's.
pugi::xml_node EnsureLabels(pugi::xml_node series) {
  const auto own = schema::Find(series, "dLbls");
  if (own) return own;
  const auto common = schema::Find(series.parent(), "dLbls");
  return common ? schema::InsertCopy(series, common) : schema::Ensure(series, "dLbls");
}

bool ShowsAnything(pugi::xml_node labels) {
  if (!labels || schema::BooleanVal(labels, "delete", false)) return false;
  return std::any_of(kShown.begin(), kShown.end(),
                     [&](const char* what) { return schema::BooleanVal(labels, what, false); });
}

/// Whether the series or one of its points shows a label.
bool HasLabels(pugi::xml_node labels) {
  const auto points = xml::Children(labels, "dLbl");
  return ShowsAnything(labels) || std::any_of(points.begin(), points.end(), ShowsAnything);
}

/// What the labels show, where that is one of the types. What shows more than one thing counts by its value,
/// then by its percentage: of all it shows, those two can be drawn again.
Variant TypeOfLabels(pugi::xml_node labels) {
  if (!ShowsAnything(labels)) {
    for (const pugi::xml_node& point : xml::Children(labels, "dLbl")) {
      if (ShowsAnything(point)) return TypeOfLabels(point);
    }
    return excel::xlNone;
  }
  const auto shows = [&](const char* what) { return schema::BooleanVal(labels, what, false); };
  if (shows("showVal")) return 2;
  for (const LabelType& type : kLabelTypes) {
    if (!type.value && type.percent == shows("showPercent") && type.category == shows("showCatName") &&
        (type.percent || type.category)) {
      return type.number;
    }
  }
  return shows("showBubbleSize") ? Variant(6) : runtime::kNull;
}

std::size_t PointCount(pugi::xml_node series) {
  const auto values =
      schema::Find(series, "val") ? schema::Find(series, "val") : schema::Find(series, "yVal");
  const auto reference = schema::Find(values, "numRef");
  const auto cache = reference ? schema::Find(reference, "numCache") : schema::Find(values, "numLit");
  const auto count = xml::ParseInteger(schema::Val(cache, "ptCount")).value_or(0);
  return static_cast<std::size_t>(std::max(count, 0LL));
}

class Labels final : public excel::DataLabels {
 public:
  explicit Labels(SeriesHandle series) : series_(std::move(series)) {}

  Ref<excel::Font> Font() override {
    return MakeFont(
        *series_.part,
        [series = series_] {
          const auto node = series.Node();
          return LooksOfLabels(*series.part, FindLabels(node), PointCount(node));
        },
        [series = series_] { return EnsureLabels(series.Node()); }, Path() + ".Font");
  }
  /// Not in the file; Excel's default.
  Variant AutoScaleFont() override { return true; }
  void SetAutoScaleFont(const Variant& value) override {
    series_.Log().Put([this] { return Path(); }, "AutoScaleFont", value);
  }
  Variant Type() override { return TypeOfLabels(FindLabels(series_.Node())); }
  void SetPosition(std::int32_t position) override {
    series_.Log().Put([this] { return Path(); }, "Position", position);
    const auto token = kLabelPositions.Token(position);
    const auto labels = EnsureLabels(series_.Node());
    if (!token) {
      throw RuntimeError(runtime::error::kApplication,
                         "Unable to set the Position property of the DataLabels class");
    }
    schema::SetVal(labels, "dLblPos", *token);
    series_.part->MarkChanged();
  }

 private:
  std::string Path() const { return series_.Path() + ".DataLabels"; }

  SeriesHandle series_;
};

class SeriesObject final : public excel::Series {
 public:
  explicit SeriesObject(SeriesHandle series) : series_(std::move(series)) {}

  std::string Name() override {
    const auto series = series_.Node();
    const std::string name = SeriesText(series);
    if (schema::Find(series, "tx")) return name;
    // counted from the first, whatever its place in the file
    return "Series" + std::to_string(xml::ParseInteger(schema::Val(series, "idx")).value_or(0) + 1);
  }
  std::int32_t ChartType() override { return TypeOfSeries(series_.Node()); }
  bool HasDataLabels() override { return HasLabels(FindLabels(series_.Node())); }
  void SetName(const Variant& name) override { Set(SeriesData::kName, "Name", name); }
  void SetXValues(const Variant& reference) override { Set(SeriesData::kCategories, "XValues", reference); }
  void SetValues(const Variant& reference) override { Set(SeriesData::kValues, "Values", reference); }

  void ApplyDataLabels(std::int32_t type) override {
    series_.Log().Call([this] { return series_.Path(); }, "ApplyDataLabels", {type});
    const auto wanted = std::find_if(kLabelTypes.begin(), kLabelTypes.end(),
                                     [&](const LabelType& entry) { return entry.number == type; });
    if (wanted == kLabelTypes.end()) {
      throw RuntimeError(runtime::error::kApplication, "ApplyDataLabels method of Series class failed");
    }
    const pugi::xml_node labels = EnsureLabels(series_.Node());
    const auto show = [&](const char* what, bool value) { schema::SetVal(labels, what, value ? "1" : "0"); };
    schema::Remove(labels, "delete");
    show("showLegendKey", false);
    show("showVal", wanted->value);
    show("showCatName", wanted->category);
    show("showSerName", false);
    show("showPercent", wanted->percent);
    show("showBubbleSize", false);
    series_.part->MarkChanged();
  }

  Ref<excel::DataLabels> DataLabels() override {
    if (!HasDataLabels()) return nullptr;
    return std::make_shared<Labels>(series_);
  }

  void Delete() override {
    series_.Log().Call([this] { return series_.Path(); }, "Delete");
    pugi::xml_node node = series_.Node();
    node.parent().remove_child(node);
    series_.part->MarkChanged();
  }

 private:
  void Set(SeriesData which, const char* property, const Variant& value) {
    series_.Log().Put([this] { return series_.Path(); }, property, value);
    SetSeriesData(*series_.part, series_.Node(), which, value);
  }

  SeriesHandle series_;
};

class Collection final : public excel::SeriesCollection {
 public:
  explicit Collection(std::shared_ptr<ChartPart> part) : part_(std::move(part)) {}

  /// None in a chart that can't be read, so that it is no reason to stop for whoever looks at all charts.
  std::int32_t Count() override {
    return part_->IsReadable() ? static_cast<std::int32_t>(SeriesOf(*part_).size()) : 0;
  }
  Ref<excel::Series> Item(std::int32_t index) override {
    const auto all = SeriesOf(*part_);
    if (index < 1 || index > static_cast<std::int32_t>(all.size())) {
      throw RuntimeError(runtime::error::kApplication, "Method 'Item' of object 'SeriesCollection' failed");
    }
    return Object(all[static_cast<std::size_t>(index) - 1]);
  }
  Ref<excel::Series> NewSeries() override {
    part_->Book().Journal().Call([] { return std::string("Chart.SeriesCollection"); }, "NewSeries");
    return Object(AddSeries(*part_));
  }

 private:
  Ref<excel::Series> Object(pugi::xml_node series) const {
    return std::make_shared<SeriesObject>(SeriesHandle{part_, schema::Val(series, "order")});
  }

  std::shared_ptr<ChartPart> part_;
};

}  // namespace

Ref<excel::SeriesCollection> MakeSeriesCollection(std::shared_ptr<ChartPart> part) {
  return std::make_shared<Collection>(std::move(part));
}

}  // namespace plotsmith::xlsx
