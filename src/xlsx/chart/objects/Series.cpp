#include "xlsx/chart/objects/Series.h"

#include <initializer_list>
#include <string>

#include "host/excel/Excel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/objects/Border.h"
#include "xlsx/chart/objects/DataLabels.h"
#include "xlsx/chart/objects/Interior.h"
#include "xlsx/chart/objects/Marker.h"
#include "xlsx/chart/objects/SeriesHandle.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/AutomaticColors.h"
#include "xlsx/chart/rules/ChartTypeRules.h"
#include "xlsx/chart/rules/ChartTypes.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/chart/rules/SeriesLabels.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

class SeriesObject final : public excel::Series {
 public:
  explicit SeriesObject(SeriesHandle series) : series_(std::move(series)) {}

  std::string Name() override { return ShownName(*series_.part, series_.Node()); }
  std::string Formula() override {
    const auto series = series_.Node();
    const auto reference = [&](std::initializer_list<const char*> elements) {
      for (const char* element : elements) {
        for (const pugi::xml_node& source : xml::Child(series, element).children()) {
          if (const auto formula = xml::Child(source, "f")) return xml::Text(formula);
        }
      }
      return std::string();
    };
    series_.part->FollowMovedRows();
    return "=SERIES(" + reference({"tx"}) + "," + reference({"cat", "xVal"}) + "," +
           reference({"val", "yVal"}) + "," + std::to_string(schema::IntegerVal(series, "order", 0) + 1) +
           ")";
  }
  void SetName(const Variant& name) override { Set(SeriesData::kName, "Name", name); }
  void SetXValues(const Variant& reference) override { Set(SeriesData::kCategories, "XValues", reference); }
  void SetValues(const Variant& reference) override { Set(SeriesData::kValues, "Values", reference); }
  void SetBubbleSizes(const Variant& reference) override {
    Set(SeriesData::kBubbleSizes, "BubbleSizes", reference);
    // If the chart has no bubbles, their sizes are set aside until it has some.
    RemoveMisfits(*series_.part, series_.Node());
  }
  std::vector<Variant> Values() override { return CachedNumbers(FindValues(series_.Node())); }

  std::int32_t ChartType() override { return TypeOfSeries(series_.Node()); }
  void SetChartType(std::int32_t type) override {
    Log("ChartType", type);
    const ChartTypeEntry* entry = FindChartType(type);
    if (entry == nullptr) throw CantSet("ChartType", "Series");
    SetSeriesType(*series_.part, series_.Node(), *entry);
  }

  void ApplyDataLabels(std::int32_t type) override {
    series_.Log().Call([this] { return series_.Path(); }, "ApplyDataLabels", {type});
    if (!ShowLabels(EnsureLabels(series_.Node()), type)) {
      throw Refusal("ApplyDataLabels method of Series class failed");
    }
    series_.part->MarkChanged();
  }
  bool HasDataLabels() override { return HasLabels(FindLabels(series_.Node())); }
  void SetHasDataLabels(bool value) override {
    Log("HasDataLabels", value);
    SetLabels(series_.Node(), value);
    series_.part->MarkChanged();
  }
  Ref<excel::DataLabels> DataLabels() override {
    if (!HasDataLabels()) return nullptr;
    return MakeDataLabels(series_);
  }

  Ref<excel::Interior> Interior() override {
    return MakeInterior(Element(),
                        [series = series_] { return AutomaticColor(*series.part, series.Node()); });
  }
  Ref<excel::Border> Border() override { return MakeBorder(Element()); }
  void SetMarkerForegroundColor(std::int32_t color) override {
    SetMarker(MarkerProperty::kOutline, "MarkerForegroundColor", color);
  }
  void SetMarkerBackgroundColor(std::int32_t color) override {
    SetMarker(MarkerProperty::kFill, "MarkerBackgroundColor", color);
  }
  void SetMarkerStyle(std::int32_t style) override {
    SetMarker(MarkerProperty::kStyle, "MarkerStyle", style);
  }
  void SetMarkerSize(std::int32_t points) override { SetMarker(MarkerProperty::kSize, "MarkerSize", points); }

  void Delete() override {
    series_.Log().Call([this] { return series_.Path(); }, "Delete");
    series_.Node();
    DeleteSeries(*series_.part, series_.entry);
  }

 private:
  void Set(SeriesData which, const char* property, const Variant& value) {
    Log(property, value);
    SetSeriesData(*series_.part, series_.Node(), which, value);
  }
  void SetMarker(MarkerProperty which, const char* property, std::int32_t value) {
    Log(property, value);
    if (!xlsx::SetMarker(series_.Node(), which, value)) throw CantSet(property, "Series");
    series_.part->MarkChanged();
  }
  FormattedElement Element() const {
    return {series_.part, [series = series_] { return series.Node(); },
            [series = series_] { return series.Path(); }};
  }
  void Log(const char* property, const Variant& value) const {
    series_.Log().Put([this] { return series_.Path(); }, property, value);
  }

  SeriesHandle series_;
};

class SeriesCollectionObject final : public excel::SeriesCollection {
 public:
  explicit SeriesCollectionObject(std::shared_ptr<ChartPart> part) : part_(std::move(part)) {}

  /// A chart that can't be read has no series, so that a loop over all charts doesn't fail.
  std::int32_t Count() override {
    return part_->IsReadable() ? static_cast<std::int32_t>(part_->Series().size()) : 0;
  }
  Ref<excel::Series> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw MethodFailed("Item", "SeriesCollection");
    return Object(part_->Series()[static_cast<std::size_t>(index) - 1]);
  }
  Ref<excel::Series> NewSeries() override {
    part_->Book().Journal().Call([] { return std::string("Chart.SeriesCollection"); }, "NewSeries");
    return Object(AddSeries(*part_));
  }

 private:
  Ref<excel::Series> Object(SeriesRef entry) const {
    return std::make_shared<SeriesObject>(SeriesHandle{part_, std::move(entry)});
  }

  std::shared_ptr<ChartPart> part_;
};

}  // namespace

Ref<excel::SeriesCollection> MakeSeriesCollection(std::shared_ptr<ChartPart> part) {
  return std::make_shared<SeriesCollectionObject>(std::move(part));
}

}  // namespace plotsmith::xlsx
