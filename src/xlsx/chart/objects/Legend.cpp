#include "xlsx/chart/objects/Legend.h"

#include <string>

#include "host/excel/Excel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/objects/ChartFont.h"
#include "xlsx/chart/objects/LegendEntries.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/part/ChartSize.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

std::string Path() { return "Chart.Legend"; }

/// Approximate positions of an automatic legend, as fractions of the chart.
constexpr double kNear = 0.02, kMiddle = 0.4, kFar = 0.8;

class LegendObject final : public excel::Legend {
 public:
  LegendObject(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame)
      : part_(std::move(part)), frame_(std::move(frame)) {}

  Ref<excel::Font> Font() override {
    return MakeFont(
        *part_, [part = part_] { return LooksOfLegend(*part, xml::Child(part->Chart(), "legend")); },
        [part = part_] { return schema::Ensure(part->Chart(), "legend"); }, Path() + ".Font");
  }

  /// The file doesn't store this; it is Excel's default.
  Variant AutoScaleFont() override { return true; }
  void SetAutoScaleFont(const Variant& value) override {
    part_->Book().Journal().Put(Path, "AutoScaleFont", value);
  }

  std::int32_t Position() override {
    const auto legend = Node();
    const auto position = kLegendPositions.Number(schema::Val(legend, "legendPos", kLegendPositions.absent));
    // A legend with a manual layout has no position.
    if (!position || PlaceOf(legend)) throw CantGet("Position", "Legend");
    return *position;
  }
  void SetPosition(std::int32_t position) override {
    part_->Book().Journal().Put(Path, "Position", position);
    const auto token = kLegendPositions.Token(position);
    if (!token) throw CantSet("Position", "Legend");
    const pugi::xml_node legend = Node();
    schema::SetVal(legend, "legendPos", *token);
    // A manual layout would override the position.
    schema::Remove(xml::Child(legend, "layout"), "manualLayout");
    part_->MarkChanged();
  }

  Ref<excel::LegendEntries> LegendEntries() override {
    Node();
    return MakeLegendEntries(part_);
  }

  double Left() override { return Place("x") * ChartSize(frame_).width; }
  double Top() override { return Place("y") * ChartSize(frame_).height; }
  void SetLeft(double points) override { SetPlace("Left", "xMode", "x", points, ChartSize(frame_).width); }
  void SetTop(double points) override { SetPlace("Top", "yMode", "y", points, ChartSize(frame_).height); }

 private:
  pugi::xml_node Node() const {
    const auto legend = xml::Child(part_->Chart(), "legend");
    if (!legend) throw CantGet("Legend", "Chart");
    return legend;
  }

  /// Returns the manual layout of a legend; a null node if there is none, or if it sets only the size.
  static pugi::xml_node PlaceOf(pugi::xml_node legend) {
    const auto layout = xml::Child(legend, "layout", "manualLayout");
    return xml::Child(layout, "x") || xml::Child(layout, "y") ? layout : pugi::xml_node();
  }

  /// Returns a coordinate as a fraction of the chart. An automatic legend is assumed to be in the middle of
  /// its side.
  double Place(const char* coordinate) const {
    const auto layout = PlaceOf(Node());
    const auto value = schema::NumberVal(layout, coordinate);
    const bool horizontal = std::string_view(coordinate) == "x";
    if (value && schema::Val(layout, horizontal ? "xMode" : "yMode") == "edge") return *value;
    const std::string side = schema::Val(Node(), "legendPos", kLegendPositions.absent);
    const double start = side == (horizontal ? "l" : "t") || (!horizontal && side == "tr")  ? kNear
                         : side == (horizontal ? "r" : "b") || (horizontal && side == "tr") ? kFar
                                                                                            : kMiddle;
    return start + value.value_or(0);  // The mode `factor` counts from the automatic position.
  }

  void SetPlace(const char* property, const char* mode, const char* fraction, double points, double extent) {
    part_->Book().Journal().Put(Path, property, points);
    if (!(points >= 0 && points <= extent) || extent <= 0) throw CantSet(property, "Legend");
    const pugi::xml_node layout = schema::Ensure(Node(), "layout", "manualLayout");
    schema::SetVal(layout, mode, "edge");
    schema::SetVal(layout, fraction, xml::Number(points / extent));
    part_->MarkChanged();
  }

  std::shared_ptr<ChartPart> part_;
  std::weak_ptr<DrawnShape> frame_;
};

}  // namespace

Ref<excel::Legend> MakeLegend(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame) {
  return std::make_shared<LegendObject>(std::move(part), std::move(frame));
}

}  // namespace plotsmith::xlsx
