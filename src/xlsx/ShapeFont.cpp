#include "xlsx/ShapeFont.h"

#include <cmath>
#include <optional>

#include "host/excel/Constants.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/DrawingFill.h"
#include "xlsx/DrawingText.h"
#include "xlsx/DrawnShape.h"
#include "xlsx/Journal.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using runtime::RuntimeError;
using runtime::Variant;

namespace {

constexpr double kMostPoints = 409;

RuntimeError CantSet(const char* property) {
  return RuntimeError(runtime::error::kApplication,
                      std::string("Unable to set the ") + property + " property of the Font class");
}

class ShapeFont final : public excel::Font {
 public:
  ShapeFont(std::shared_ptr<DrawnShape> shape, std::size_t start, std::size_t length, std::string path)
      : shape_(std::move(shape)), start_(start), length_(length), path_(std::move(path)) {}

  void SetName(const Variant& name) override {
    const std::string typeface = runtime::CStr(name);
    if (typeface.empty()) throw CantSet("Name");
    Apply("Name", name, [&](pugi::xml_node properties) {
      xml::SetAttribute(schema::Ensure(properties, "latin"), "typeface", typeface);
      xml::SetAttribute(schema::Ensure(properties, "cs"), "typeface", typeface);
    });
  }
  void SetSize(const Variant& size) override {
    const double points = runtime::CDbl(size);
    if (!(points >= 1 && points <= kMostPoints)) throw CantSet("Size");
    const std::string hundredths = std::to_string(std::lround(points * 100));
    Apply("Size", size, [&](pugi::xml_node properties) { xml::SetAttribute(properties, "sz", hundredths); });
  }
  void SetFontStyle(const Variant& style) override {
    const std::string name = runtime::UCase(runtime::CStr(style));
    const bool bold = name.find("BOLD") != std::string::npos;
    const bool italic = name.find("ITALIC") != std::string::npos || name.find("OBLIQUE") != std::string::npos;
    Apply("FontStyle", style, [&](pugi::xml_node properties) {
      xml::SetAttribute(properties, "b", bold ? "1" : "0");
      xml::SetAttribute(properties, "i", italic ? "1" : "0");
    });
  }
  void SetColor(const Variant& color) override {
    const std::int32_t value = runtime::CLng(color);
    if (value < 0 || value > 0xFFFFFF) throw CantSet("Color");
    Apply("Color", color,
          [&](pugi::xml_node properties) { SetFillColor(SetFill(properties, "solidFill"), value); });
  }
  void SetBold(bool value) override {
    Apply("Bold", value,
          [&](pugi::xml_node properties) { xml::SetAttribute(properties, "b", value ? "1" : "0"); });
  }
  // the text of a shape has no background of its own
  void SetBackground(std::int32_t background) override {
    shape_->Log().Put([this] { return path_; }, "Background", background);
  }
  Variant Background() override { return excel::xlBackgroundAutomatic; }

  Variant Name() override {
    return Common([&](pugi::xml_node run) { return Variant(FaceOf(run, shape_->Book().Theme()).font); });
  }
  Variant Size() override {
    return Common([&](pugi::xml_node run) { return Variant(FaceOf(run, shape_->Book().Theme()).size); });
  }
  Variant FontStyle() override {
    return Common([](pugi::xml_node run) {
      const bool bold = xml::BooleanAttribute(run, "b", false),
                 italic = xml::BooleanAttribute(run, "i", false);
      return Variant(bold ? (italic ? "Bold Italic" : "Bold") : italic ? "Italic" : "Regular");
    });
  }
  Variant Color() override {
    return Common([&](pugi::xml_node run) {
      return Variant(shape_->Book().Theme().Color(xml::Child(run, "solidFill")).value_or(0));
    });
  }

 private:
  template <class Set>
  void Apply(const char* property, const Variant& value, const Set& set) {
    shape_->Log().Put([this] { return path_; }, property, value);
    for (const pugi::xml_node& properties :
         DrawingText(shape_->Object()).EnsureRunProperties(start_, length_))
      set(properties);
    shape_->FitToText();
    shape_->MarkChanged();
  }

  /// What all runs say, or Null.
  template <class Get>
  Variant Common(const Get& get) const {
    const auto runs = DrawingText(shape_->Object()).RunProperties(start_, length_);
    if (runs.empty()) return get(pugi::xml_node());
    const Variant first = get(runs[0]);
    for (const pugi::xml_node& run : runs) {
      if (get(run) != first) return runtime::kNull;
    }
    return first;
  }

  std::shared_ptr<DrawnShape> shape_;
  std::size_t start_, length_;
  std::string path_;
};

}  // namespace

excel::Ref<excel::Font> MakeShapeFont(std::shared_ptr<DrawnShape> shape, std::size_t start,
                                      std::size_t length, std::string journalPath) {
  return std::make_shared<ShapeFont>(std::move(shape), start, length, std::move(journalPath));
}

}  // namespace plotsmith::xlsx
