#include "xlsx/chart/objects/LegendEntries.h"

#include <string>
#include <utility>

#include "host/excel/LegendEntry.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/LegendLines.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

class LegendEntryObject final : public excel::LegendEntry {
 public:
  LegendEntryObject(std::shared_ptr<ChartPart> part, std::size_t number, std::int32_t place)
      : part_(std::move(part)), number_(number), place_(place) {}

  void Delete() override {
    part_->Book().Journal().Call(
        [this] { return "Chart.Legend.LegendEntries(" + std::to_string(place_) + ")"; }, "Delete");
    const auto legend = xml::Child(part_->Chart(), "legend");
    if (!legend) throw Refusal("Delete method of LegendEntry class failed");
    const pugi::xml_node entry =
        schema::EnsureNumbered(legend, "legendEntry", static_cast<long long>(number_));
    schema::Remove(entry, "txPr");
    schema::SetVal(entry, "delete", "1");
    part_->MarkChanged();
  }

 private:
  std::shared_ptr<ChartPart> part_;
  std::size_t number_;
  std::int32_t place_;
};

class LegendEntriesObject final : public excel::LegendEntries {
 public:
  explicit LegendEntriesObject(std::shared_ptr<ChartPart> part) : part_(std::move(part)) {}

  std::int32_t Count() override { return static_cast<std::int32_t>(LegendNumbers(*part_).size()); }
  Ref<excel::LegendEntry> Item(std::int32_t index) override {
    const auto left = LegendNumbers(*part_);
    if (index < 1 || index > static_cast<std::int32_t>(left.size())) {
      throw MethodFailed("Item", "LegendEntries");
    }
    return std::make_shared<LegendEntryObject>(part_, left[static_cast<std::size_t>(index) - 1], index);
  }

 private:
  std::shared_ptr<ChartPart> part_;
};

}  // namespace

Ref<excel::LegendEntries> MakeLegendEntries(std::shared_ptr<ChartPart> part) {
  return std::make_shared<LegendEntriesObject>(std::move(part));
}

}  // namespace plotsmith::xlsx
