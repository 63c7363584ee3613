#include "xlsx/ChartAxis.h"

#include <string>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "xlsx/ChartGroups.h"
#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/ChartText.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

/// An axis, found anew at each use: a change of the chart's type may replace the element.
struct AxisHandle {
  std::shared_ptr<ChartPart> part;
  std::int32_t type;

  pugi::xml_node Node() const {
    const auto axis = FindAxis(*part, type == excel::xlValue);
    if (!axis) throw RuntimeError(runtime::error::kApplication, "Method of object 'Axis' failed");
    return axis;
  }
  std::string Path() const { return "Chart.Axes(" + std::to_string(type) + ", 1)"; }
  const Journal& Log() const { return part->Book().Journal(); }
};

class Title final : public excel::AxisTitle {
 public:
  explicit Title(AxisHandle axis) : axis_(std::move(axis)) {}

  std::string Text() override {
    const auto title = Node();
    return schema::Find(title, "tx") ? TitleText(title) : "Axis Title";
  }
  void SetText(std::string_view text) override {
    axis_.Log().Put([this] { return Path(); }, "Text", text);
    SetTitleText(Node(), text);
    axis_.part->MarkChanged();
  }

  Ref<excel::Font> Font() override {
    return MakeFont(
        *axis_.part,
        [axis = axis_] {
          return LooksOf(*axis.part, schema::Find(axis.Node(), "title"), TextRole::kAxisTitle);
        },
        [axis = axis_] { return schema::Ensure(axis.Node(), "title"); }, Path() + ".Font");
  }

  /// Not in the file; Excel's default.
  Variant AutoScaleFont() override { return true; }
  void SetAutoScaleFont(const Variant& value) override {
    axis_.Log().Put([this] { return Path(); }, "AutoScaleFont", value);
  }

  void SetOrientation(std::int32_t orientation) override {
    axis_.Log().Put([this] { return Path(); }, "Orientation", orientation);
    const auto rich = schema::Find(schema::Find(Node(), "tx"), "rich");
    const pugi::xml_node body = schema::Ensure(rich ? rich : schema::Ensure(Node(), "txPr"), "bodyPr");
    std::int32_t degrees = 0;
    std::string_view direction = "horz";
    switch (orientation) {
      case excel::xlHorizontal:
        break;
      case excel::xlUpward:
        degrees = 90;
        break;
      case excel::xlDownward:
        degrees = -90;
        break;
      case excel::xlVertical:
        direction = "wordArtVert";
        break;
      default:
        if (orientation < -90 || orientation > 90) {
          throw RuntimeError(runtime::error::kApplication,
                             "Unable to set the Orientation property of the AxisTitle class");
        }
        degrees = orientation;
    }
    // the file turns clockwise, in sixty-thousandths of a degree
    xml::SetAttribute(body, "rot", std::to_string(-degrees * 60000));
    xml::SetAttribute(body, "vert", direction);
    axis_.part->MarkChanged();
  }

 private:
  pugi::xml_node Node() const {
    const auto title = schema::Find(axis_.Node(), "title");
    if (!title)
      throw RuntimeError(runtime::error::kApplication,
                         "Unable to get the AxisTitle property of the Axis class");
    return title;
  }
  std::string Path() const { return axis_.Path() + ".AxisTitle"; }

  AxisHandle axis_;
};

class Ticks final : public excel::TickLabels {
 public:
  explicit Ticks(AxisHandle axis) : axis_(std::move(axis)) {}

  bool NumberFormatLinked() override {
    const auto format = schema::Find(axis_.Node(), "numFmt");
    return !format || xml::BooleanAttribute(format, "sourceLinked", false);
  }
  std::string NumberFormat() override {
    return xml::Attribute(schema::Find(axis_.Node(), "numFmt"), "formatCode", "General");
  }
  void SetNumberFormatLinked(bool value) override {
    axis_.Log().Put([this] { return axis_.Path() + ".TickLabels"; }, "NumberFormatLinked", value);
    const pugi::xml_node format = schema::Ensure(axis_.Node(), "numFmt");
    if (!format.attribute("formatCode")) xml::SetAttribute(format, "formatCode", "General");
    xml::SetAttribute(format, "sourceLinked", value ? "1" : "0");
    axis_.part->MarkChanged();
  }

 private:
  AxisHandle axis_;
};

class AxisObject final : public excel::Axis {
 public:
  explicit AxisObject(AxisHandle axis) : axis_(std::move(axis)) {}

  bool HasTitle() override { return static_cast<bool>(schema::Find(axis_.Node(), "title")); }
  void SetHasTitle(bool value) override {
    axis_.Log().Put([this] { return axis_.Path(); }, "HasTitle", value);
    const pugi::xml_node axis = axis_.Node();
    if (!value) {
      schema::Remove(axis, "title");
    } else if (!schema::Find(axis, "title")) {
      schema::SetVal(schema::Ensure(axis, "title"), "overlay", "0");
    }
    axis_.part->MarkChanged();
  }
  Ref<excel::AxisTitle> AxisTitle() override {
    if (!HasTitle()) {
      throw RuntimeError(runtime::error::kApplication,
                         "Unable to get the AxisTitle property of the Axis class");
    }
    return std::make_shared<Title>(axis_);
  }
  Ref<excel::TickLabels> TickLabels() override { return std::make_shared<Ticks>(axis_); }

 private:
  AxisHandle axis_;
};

}  // namespace

Ref<excel::Axis> MakeAxis(std::shared_ptr<ChartPart> part, std::int32_t type) {
  return std::make_shared<AxisObject>(AxisHandle{std::move(part), type});
}

}  // namespace plotsmith::xlsx
