#include "xlsx/drawing/FillAndLine.h"

#include <string>

#include "host/excel/ColorFormat.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Journal.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/DrawnShape.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

constexpr double kMostPoints = 1584;

/// The element that contains a fill: the properties of a shape, or those of its outline.
enum class Part { kFill, kLine };

/// Raises error 1004 for a group, which has no outline.
pugi::xml_node PropertiesOf(const DrawnShape& shape, Part part) {
  const pugi::xml_node properties = shape.Properties();
  if (part == Part::kFill) return properties;
  if (xml::Is(properties, "grpSpPr")) throw OutOfRange();
  return schema::Ensure(properties, "ln");
}

/// The colours of a fill or an outline. Only a pattern has the second one.
enum class Ink { kFore, kBack };

class ColorFormatObject final : public excel::ColorFormat {
 public:
  ColorFormatObject(std::shared_ptr<DrawnShape> shape, Part part, Ink ink)
      : shape_(std::move(shape)), part_(part), ink_(ink) {}

  void SetRGB(std::int32_t color) override {
    shape_->Log().Put(
        [this] {
          return shape_->JournalPath() + (part_ == Part::kFill ? ".Fill." : ".Line.") +
                 (ink_ == Ink::kBack ? "BackColor" : "ForeColor");
        },
        "RGB", color);
    if (!IsColor(color)) throw OutOfRange();
    const pugi::xml_node properties = PropertiesOf(*shape_, part_);
    const pugi::xml_node fill = FindFill(properties);
    if (xml::Is(fill, "pattFill")) {
      SetFillColor(schema::Ensure(fill, ink_ == Ink::kBack ? "bgClr" : "fgClr"), color);
    } else if (ink_ == Ink::kFore) {
      SetFillColor(SetFill(properties, "solidFill"), color);
    }
    shape_->MarkChanged();
  }

 private:
  std::shared_ptr<DrawnShape> shape_;
  Part part_;
  Ink ink_;
};

class FillFormatObject final : public excel::FillFormat {
 public:
  explicit FillFormatObject(std::shared_ptr<DrawnShape> shape) : shape_(std::move(shape)) {}
  Ref<excel::ColorFormat> ForeColor() override {
    return std::make_shared<ColorFormatObject>(shape_, Part::kFill, Ink::kFore);
  }
  Ref<excel::ColorFormat> BackColor() override {
    return std::make_shared<ColorFormatObject>(shape_, Part::kFill, Ink::kBack);
  }

 private:
  std::shared_ptr<DrawnShape> shape_;
};

class LineFormatObject final : public excel::LineFormat {
 public:
  explicit LineFormatObject(std::shared_ptr<DrawnShape> shape) : shape_(std::move(shape)) {}

  void SetVisible(bool value) override {
    shape_->Log().Put([this] { return Path(); }, "Visible", value);
    const pugi::xml_node line = PropertiesOf(*shape_, Part::kLine);
    if (!value) {
      SetFill(line, "noFill");
    } else if (const auto fill = FindFill(line); !fill || xml::Is(fill, "noFill")) {
      RemoveFill(line);
      // The shape's style defines its outline.
      if (!xml::Child(shape_->Object(), "style"))
        schema::SetVal(SetFill(line, "solidFill"), "schemeClr", "tx1");
    }
    shape_->MarkChanged();
  }
  void SetWeight(double points) override {
    shape_->Log().Put([this] { return Path(); }, "Weight", points);
    if (!(points >= 0 && points <= kMostPoints)) throw OutOfRange();
    xml::SetAttribute(PropertiesOf(*shape_, Part::kLine), "w", std::to_string(Emu(points)));
    shape_->MarkChanged();
  }
  Ref<excel::ColorFormat> ForeColor() override {
    return std::make_shared<ColorFormatObject>(shape_, Part::kLine, Ink::kFore);
  }
  Ref<excel::ColorFormat> BackColor() override {
    return std::make_shared<ColorFormatObject>(shape_, Part::kLine, Ink::kBack);
  }

 private:
  std::string Path() const { return shape_->JournalPath() + ".Line"; }

  std::shared_ptr<DrawnShape> shape_;
};

}  // namespace

Ref<excel::FillFormat> MakeFill(std::shared_ptr<DrawnShape> shape) {
  return std::make_shared<FillFormatObject>(std::move(shape));
}

Ref<excel::LineFormat> MakeLine(std::shared_ptr<DrawnShape> shape) {
  return std::make_shared<LineFormatObject>(std::move(shape));
}

}  // namespace plotsmith::xlsx
