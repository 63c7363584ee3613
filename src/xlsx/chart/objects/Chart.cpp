#include "xlsx/chart/objects/Chart.h"

#include <optional>
#include <string>

#include "host/excel/Excel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/objects/Axis.h"
#include "xlsx/chart/objects/ChartAreas.h"
#include "xlsx/chart/objects/Legend.h"
#include "xlsx/chart/objects/Series.h"
#include "xlsx/chart/part/ChartDrawing.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/part/ChartSize.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/chart/rules/ChartTypes.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

constexpr std::int32_t kWidestGap = 500;  // percent of a column's width

std::string Self() { return "Chart"; }

pugi::xml_node EnsureTitle(ChartPart& part) {
  if (const auto title = xml::Child(part.Chart(), "title")) return title;
  const pugi::xml_node title = schema::Ensure(part.Chart(), "title");
  schema::SetVal(title, "overlay", "0");
  return title;
}

class ChartTitleObject final : public excel::ChartTitle {
 public:
  explicit ChartTitleObject(std::shared_ptr<ChartPart> part) : part_(std::move(part)) {}

  std::string Text() override { return ShownTitle(*part_).value_or(std::string()); }
  void SetText(std::string_view text) override {
    part_->Book().Journal().Put([] { return std::string("Chart.ChartTitle"); }, "Text", text);
    SetTitleText(EnsureTitle(*part_), text);
    part_->MarkChanged();
  }

 private:
  std::shared_ptr<ChartPart> part_;
};

class ChartGroupObject final : public excel::ChartGroup {
 public:
  ChartGroupObject(std::shared_ptr<ChartPart> part, std::int32_t index)
      : part_(std::move(part)), index_(index) {}

  void SetGapWidth(std::int32_t percent) override {
    part_->Book().Journal().Put([this] { return "Chart.ChartGroups(" + std::to_string(index_) + ")"; },
                                "GapWidth", percent);
    const auto groups = DrawnGroups(*part_);
    const auto group = static_cast<std::size_t>(index_) <= groups.size()
                           ? groups[static_cast<std::size_t>(index_) - 1]
                           : pugi::xml_node();
    if (!xml::LocalName(group).starts_with("bar") || percent < 0 || percent > kWidestGap) {
      throw CantSet("GapWidth", "ChartGroup");
    }
    schema::SetVal(group, "gapWidth", std::to_string(percent));
    part_->MarkChanged();
  }

 private:
  std::shared_ptr<ChartPart> part_;
  std::int32_t index_;
};

}  // namespace

Chart::Chart(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame)
    : part_(std::move(part)), frame_(std::move(frame)) {}

Ref<excel::Application> Chart::Application() { return part_->Book().Host(); }

std::int32_t Chart::ChartType() { return TypeOfChart(*part_); }

void Chart::SetChartType(std::int32_t type) {
  part_->Book().Journal().Put(Self, "ChartType", type);
  const ChartTypeEntry* entry = FindChartType(type);
  if (entry == nullptr) throw CantSet("ChartType", "Chart");
  SetType(*part_, *entry);
}

Ref<excel::SeriesCollection> Chart::SeriesCollection() { return MakeSeriesCollection(part_); }

bool Chart::HasTitle() { return ShownTitle(*part_).has_value(); }

void Chart::SetHasTitle(bool value) {
  part_->Book().Journal().Put(Self, "HasTitle", value);
  const pugi::xml_node chart = part_->Chart();
  if (value) {
    EnsureTitle(*part_);
  } else {
    schema::Remove(chart, "title");
  }
  // Without this element, a chart of one series would show the name of the series as its title.
  schema::SetBooleanVal(chart, "autoTitleDeleted", !value);
  part_->MarkChanged();
}

Ref<excel::ChartTitle> Chart::ChartTitle() {
  if (!ShownTitle(*part_)) throw CantGet("ChartTitle", "Chart");
  return std::make_shared<ChartTitleObject>(part_);
}

bool Chart::HasLegend() { return static_cast<bool>(xml::Child(part_->Chart(), "legend")); }

void Chart::SetHasLegend(bool value) {
  part_->Book().Journal().Put(Self, "HasLegend", value);
  const pugi::xml_node chart = part_->Chart();
  if (!value) {
    schema::Remove(chart, "legend");
  } else if (!xml::Child(chart, "legend")) {
    const pugi::xml_node legend = schema::Ensure(chart, "legend");
    schema::SetVal(legend, "legendPos", kLegendPositions.absent);
    schema::SetVal(legend, "overlay", "0");
  }
  part_->MarkChanged();
}

Ref<excel::Legend> Chart::Legend() {
  if (!xml::Child(part_->Chart(), "legend")) throw CantGet("Legend", "Chart");
  return MakeLegend(part_, frame_);
}

bool Chart::HasAxis(std::int32_t type) {
  const auto axis = FindAxis(*part_, type == excel::xlValue);
  return axis && !schema::BooleanVal(axis, "delete", false);
}

void Chart::SetHasAxis(std::int32_t type, bool value) {
  part_->Book().Journal().Put(Self, "HasAxis(" + std::to_string(type) + ")", value);
  const auto axis = FindAxis(*part_, type == excel::xlValue);
  if (!axis) throw CantSet("HasAxis", "Chart");
  schema::SetBooleanVal(axis, "delete", !value);
  part_->MarkChanged();
}

Ref<excel::Axis> Chart::Axes(std::int32_t type, std::int32_t group) {
  if (group != excel::xlPrimary || !FindAxis(*part_, type == excel::xlValue)) {
    throw MethodFailed("Axes", "_Chart");
  }
  return MakeAxis(part_, type);
}

Ref<excel::ChartGroup> Chart::ChartGroups(std::int32_t index) {
  const auto groups = DrawnGroups(*part_);
  if (index < 1 || index > static_cast<std::int32_t>(groups.size())) {
    throw MethodFailed("ChartGroups", "_Chart");
  }
  return std::make_shared<ChartGroupObject>(part_, index);
}

Ref<excel::ChartArea> Chart::ChartArea() { return MakeChartArea(part_, frame_); }

Ref<excel::PlotArea> Chart::PlotArea() { return MakePlotArea(part_, frame_); }

Ref<excel::Shapes> Chart::Shapes() { return MakeChartShapes(part_, frame_); }

Frame Chart::Size() const { return ChartSize(frame_); }

}  // namespace plotsmith::xlsx
