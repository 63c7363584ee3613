#include "xlsx/chart/objects/Axis.h"

#include <cmath>
#include <optional>
#include <string>

#include "host/excel/Excel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/objects/Border.h"
#include "xlsx/chart/objects/ChartFont.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/ScaleOfAxis.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

constexpr std::int32_t kLogarithmic = -4133;  // xlScaleLogarithmic

/// An axis. Each use looks it up again, because a change of the chart's type may replace its element.
struct AxisHandle {
  std::shared_ptr<ChartPart> part;
  std::int32_t type;

  pugi::xml_node Node() const {
    const auto axis = FindAxis(*part, type == excel::xlValue);
    if (!axis) throw Refusal("Method of object 'Axis' failed");
    return axis;
  }
  std::string Path() const { return "Chart.Axes(" + std::to_string(type) + ", 1)"; }
  const Journal& Log() const { return part->Book().Journal(); }
};

class AxisTitleObject final : public excel::AxisTitle {
 public:
  explicit AxisTitleObject(AxisHandle axis) : axis_(std::move(axis)) {}

  std::string Text() override {
    const auto title = Node();
    return xml::Child(title, "tx") ? TitleText(*axis_.part, title) : "Axis Title";
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
          return LooksOf(*axis.part, xml::Child(axis.Node(), "title"), TextRole::kAxisTitle);
        },
        [axis = axis_] { return schema::Ensure(axis.Node(), "title"); }, Path() + ".Font");
  }

  /// The file doesn't store this; it is Excel's default.
  Variant AutoScaleFont() override { return true; }
  void SetAutoScaleFont(const Variant& value) override {
    axis_.Log().Put([this] { return Path(); }, "AutoScaleFont", value);
  }

  void SetOrientation(std::int32_t orientation) override {
    axis_.Log().Put([this] { return Path(); }, "Orientation", orientation);
    const auto rich = xml::Child(Node(), "tx", "rich");
    if (!SetTextOrientation(rich ? rich : schema::Ensure(Node(), "txPr"), orientation)) {
      throw CantSet("Orientation", "AxisTitle");
    }
    axis_.part->MarkChanged();
  }

 private:
  pugi::xml_node Node() const {
    const auto title = xml::Child(axis_.Node(), "title");
    if (!title) throw CantGet("AxisTitle", "Axis");
    return title;
  }
  std::string Path() const { return axis_.Path() + ".AxisTitle"; }

  AxisHandle axis_;
};

class TickLabelsObject final : public excel::TickLabels {
 public:
  explicit TickLabelsObject(AxisHandle axis) : axis_(std::move(axis)) {}

  bool NumberFormatLinked() override {
    const auto format = xml::Child(axis_.Node(), "numFmt");
    return !format || xml::BooleanAttribute(format, "sourceLinked", false);
  }
  std::string NumberFormat() override {
    return xml::Attribute(xml::Child(axis_.Node(), "numFmt"), "formatCode", "General");
  }
  void SetNumberFormatLinked(bool value) override {
    axis_.Log().Put([this] { return axis_.Path() + ".TickLabels"; }, "NumberFormatLinked", value);
    const pugi::xml_node format = schema::Ensure(axis_.Node(), "numFmt");
    if (!format.attribute("formatCode")) xml::SetAttribute(format, "formatCode", "General");
    schema::SetBooleanAttribute(format, "sourceLinked", value);
    axis_.part->MarkChanged();
  }

 private:
  AxisHandle axis_;
};

class AxisObject final : public excel::Axis {
 public:
  explicit AxisObject(AxisHandle axis) : axis_(std::move(axis)) {}

  bool HasTitle() override { return static_cast<bool>(xml::Child(axis_.Node(), "title")); }
  void SetHasTitle(bool value) override {
    axis_.Log().Put([this] { return axis_.Path(); }, "HasTitle", value);
    const pugi::xml_node axis = axis_.Node();
    if (!value) {
      schema::Remove(axis, "title");
    } else if (!xml::Child(axis, "title")) {
      schema::SetVal(schema::Ensure(axis, "title"), "overlay", "0");
    }
    axis_.part->MarkChanged();
  }
  Ref<excel::AxisTitle> AxisTitle() override {
    if (!HasTitle()) throw CantGet("AxisTitle", "Axis");
    return std::make_shared<AxisTitleObject>(axis_);
  }
  Ref<excel::TickLabels> TickLabels() override { return std::make_shared<TickLabelsObject>(axis_); }
  void SetTickLabelPosition(std::int32_t position) override {
    Log("TickLabelPosition", position);
    SetVal(axis_.Node(), "tickLblPos", kTickLabelPositions.Token(position), "TickLabelPosition");
  }

  void SetHasMajorGridlines(bool value) override {
    SetGridlines("HasMajorGridlines", "majorGridlines", value);
  }
  void SetHasMinorGridlines(bool value) override {
    SetGridlines("HasMinorGridlines", "minorGridlines", value);
  }

  double MinimumScale() override { return Scale("MinimumScale").minimum; }
  double MaximumScale() override { return Scale("MaximumScale").maximum; }
  void SetMinimumScale(double value) override { SetLimit("MinimumScale", "min", value); }
  void SetMaximumScale(double value) override { SetLimit("MaximumScale", "max", value); }
  void SetMajorUnit(double value) override {
    Log("MajorUnit", value);
    const pugi::xml_node axis = Values("MajorUnit");
    if (!(value > 0) || !std::isfinite(value)) throw CantSet("MajorUnit", "Axis");
    schema::SetVal(axis, "majorUnit", xml::Number(value));
    axis_.part->MarkChanged();
  }
  void SetMajorUnitIsAuto(bool value) override {
    Log("MajorUnitIsAuto", value);
    const pugi::xml_node axis = Values("MajorUnitIsAuto");
    if (value) {
      schema::Remove(axis, "majorUnit");
    } else {
      schema::SetVal(axis, "majorUnit", xml::Number(ScaleOf(*axis_.part, axis).majorUnit));
    }
    axis_.part->MarkChanged();
  }
  void SetReversePlotOrder(bool value) override {
    Log("ReversePlotOrder", value);
    schema::SetVal(schema::Ensure(axis_.Node(), "scaling"), "orientation", value ? "maxMin" : "minMax");
    axis_.part->MarkChanged();
  }
  void SetScaleType(std::int32_t type) override {
    Log("ScaleType", type);
    const pugi::xml_node scaling = schema::Ensure(Values("ScaleType"), "scaling");
    if (type == excel::xlLinear) {
      schema::Remove(scaling, "logBase");
    } else if (type == kLogarithmic) {
      schema::SetVal(scaling, "logBase", "10");
    } else {
      throw CantSet("ScaleType", "Axis");
    }
    axis_.part->MarkChanged();
  }
  void SetDisplayUnit(std::int32_t unit) override {
    Log("DisplayUnit", unit);
    const pugi::xml_node axis = Values("DisplayUnit");
    const auto token = kDisplayUnits.Token(unit);
    if (unit == excel::xlNone) {
      schema::Remove(axis, "dispUnits");
    } else if (token) {
      const pugi::xml_node units = schema::Ensure(axis, "dispUnits");
      schema::Remove(units, "custUnit");
      schema::SetVal(units, "builtInUnit", *token);
      schema::Ensure(units, "dispUnitsLbl");
    } else {
      throw CantSet("DisplayUnit", "Axis");
    }
    axis_.part->MarkChanged();
  }
  void SetCrosses(std::int32_t crosses) override {
    Log("Crosses", crosses);
    // The file stores this in the other axis.
    const pugi::xml_node other = FindCrossedAxis(axis_.Node());
    if (!other) throw CantSet("Crosses", "Axis");
    SetVal(other, "crosses", kCrosses.Token(crosses), "Crosses");
    schema::Remove(other, "crossesAt");
  }

  Ref<excel::Border> Border() override {
    return MakeBorder(
        {axis_.part, [axis = axis_] { return axis.Node(); }, [axis = axis_] { return axis.Path(); }});
  }

 private:
  void Log(const char* property, const Variant& value) const {
    axis_.Log().Put([this] { return axis_.Path(); }, property, value);
  }
  void SetVal(pugi::xml_node axis, const char* name, std::optional<std::string_view> token,
              const char* property) {
    if (!token) throw CantSet(property, "Axis");
    schema::SetVal(axis, name, *token);
    axis_.part->MarkChanged();
  }
  void SetGridlines(const char* property, const char* name, bool value) {
    Log(property, value);
    if (value) {
      schema::Ensure(axis_.Node(), name);
    } else {
      schema::Remove(axis_.Node(), name);
    }
    axis_.part->MarkChanged();
  }
  /// Returns the axis. Raises error 1004 if it isn't a value axis, because only those have the property.
  pugi::xml_node Values(const char* property) const {
    const pugi::xml_node axis = axis_.Node();
    if (!xml::Is(axis, "valAx")) throw CantSet(property, "Axis");
    return axis;
  }
  AxisScale Scale(const char* property) const {
    const pugi::xml_node axis = axis_.Node();
    if (!xml::Is(axis, "valAx")) throw CantGet(property, "Axis");
    return ScaleOf(*axis_.part, axis);
  }
  void SetLimit(const char* property, const char* name, double value) {
    Log(property, value);
    const pugi::xml_node scaling = schema::Ensure(Values(property), "scaling");
    if (!std::isfinite(value)) throw CantSet(property, "Axis");
    schema::SetVal(scaling, name, xml::Number(value));
    axis_.part->MarkChanged();
  }

  AxisHandle axis_;
};

}  // namespace

Ref<excel::Axis> MakeAxis(std::shared_ptr<ChartPart> part, std::int32_t type) {
  return std::make_shared<AxisObject>(AxisHandle{std::move(part), type});
}

}  // namespace plotsmith::xlsx
