#include "xlsx/ChartLegend.h"

#include <string>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "xlsx/ChartLegendEntries.h"
#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/ChartText.h"
#include "xlsx/Enumerations.h"
#include "xlsx/Shape.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

std::string Path() { return "Chart.Legend"; }

RuntimeError CantSet(const char* property) {
  return RuntimeError(runtime::error::kApplication,
                      std::string("Unable to set the ") + property + " property of the Legend class");
}

class LegendObject final : public excel::Legend {
 public:
  LegendObject(std::shared_ptr<ChartPart> part, std::weak_ptr<Shape> frame)
      : part_(std::move(part)), frame_(std::move(frame)) {}

  Ref<excel::Font> Font() override {
    return MakeFont(
        *part_, [part = part_] { return schema::Ensure(part->Chart(), "legend"); }, Path() + ".Font");
  }

  void SetAutoScaleFont(const Variant& value) override {
    part_->Book().Journal().Put(Path, "AutoScaleFont", value);
  }

  void SetPosition(std::int32_t position) override {
    part_->Book().Journal().Put(Path, "Position", position);
    const auto token = kLegendPositions.Token(position);
    if (!token) throw CantSet("Position");
    const pugi::xml_node legend = Node();
    schema::SetVal(legend, "legendPos", *token);
    // a place taken by hand would win over the position
    schema::Remove(schema::Find(legend, "layout"), "manualLayout");
    part_->MarkChanged();
  }

  Ref<excel::LegendEntries> LegendEntries() override {
    Node();
    return MakeLegendEntries(part_);
  }

  void SetLeft(double points) override { SetPlace("Left", "xMode", "x", points, Size().width); }
  void SetTop(double points) override { SetPlace("Top", "yMode", "y", points, Size().height); }

 private:
  pugi::xml_node Node() const {
    const auto legend = schema::Find(part_->Chart(), "legend");
    if (!legend)
      throw RuntimeError(runtime::error::kApplication,
                         "Unable to get the Legend property of the Chart class");
    return legend;
  }

  Frame Size() const {
    const auto frame = frame_.lock();
    return frame ? frame->PlacedFrame() : Frame();
  }

  void SetPlace(const char* property, const char* mode, const char* fraction, double points, double extent) {
    part_->Book().Journal().Put(Path, property, points);
    if (!(points >= 0 && points <= extent) || extent <= 0) throw CantSet(property);
    const pugi::xml_node layout = schema::Ensure(Node(), "layout", "manualLayout");
    schema::SetVal(layout, mode, "edge");
    schema::SetVal(layout, fraction, xml::Number(points / extent));
    part_->MarkChanged();
  }

  std::shared_ptr<ChartPart> part_;
  std::weak_ptr<Shape> frame_;
};

}  // namespace

Ref<excel::Legend> MakeLegend(std::shared_ptr<ChartPart> part, std::weak_ptr<Shape> frame) {
  return std::make_shared<LegendObject>(std::move(part), std::move(frame));
}

}  // namespace plotsmith::xlsx
