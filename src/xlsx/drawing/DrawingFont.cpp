#include "xlsx/drawing/DrawingFont.h"

#include <cmath>

#include "host/excel/Constants.h"
#include "runtime/Strings.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Journal.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

constexpr double kMostPoints = 409;

}  // namespace

/// Returns the value of a property if the whole text has the same value, otherwise Null.
template <class Get>
Variant DrawingFont::Common(const Get& get) const {
  Variant common;
  for (const TextLook& look : Looks()) {
    const Variant own = get(look);
    if (!common.IsEmpty() && common != own) return runtime::kNull;
    common = own;
  }
  return common;
}

void DrawingFont::Apply(const char* property, const Variant& value,
                        const std::function<void(pugi::xml_node)>& set) {
  Log().Put([this] { return path_; }, property, value);
  ForEachRun(set);
}

Variant DrawingFont::Name() {
  return Common([](const TextLook& look) { return Variant(look.typeface); });
}

Variant DrawingFont::Size() {
  return Common([](const TextLook& look) { return Variant(look.points); });
}

Variant DrawingFont::FontStyle() {
  return Common([](const TextLook& look) {
    return Variant(look.bold ? (look.italic ? "Bold Italic" : "Bold") : look.italic ? "Italic" : "Regular");
  });
}

Variant DrawingFont::Color() {
  return Common([](const TextLook& look) { return Variant(look.color); });
}

/// The file doesn't store this property.
Variant DrawingFont::Background() { return excel::xlBackgroundAutomatic; }

void DrawingFont::SetName(const Variant& name) {
  const std::string typeface = runtime::CStr(name);
  if (typeface.empty()) throw CantSet("Name", "Font");
  Apply("Name", name, [&](pugi::xml_node properties) {
    // As in Excel, this sets the Latin and the complex script typeface, but not the East Asian one.
    xml::SetAttribute(schema::Ensure(properties, "latin"), "typeface", typeface);
    xml::SetAttribute(schema::Ensure(properties, "cs"), "typeface", typeface);
  });
}

void DrawingFont::SetSize(const Variant& size) {
  const double points = runtime::CDbl(size);
  if (!(points >= 1 && points <= kMostPoints)) throw CantSet("Size", "Font");
  const std::string hundredths = std::to_string(std::lround(points * 100));
  Apply("Size", size, [&](pugi::xml_node properties) { xml::SetAttribute(properties, "sz", hundredths); });
}

void DrawingFont::SetFontStyle(const Variant& style) {
  const std::string name = runtime::UCase(runtime::CStr(style));
  if (name.empty()) throw CantSet("FontStyle", "Font");
  const bool bold = name.find("BOLD") != std::string::npos;
  const bool italic = name.find("ITALIC") != std::string::npos || name.find("OBLIQUE") != std::string::npos;
  Apply("FontStyle", style, [&](pugi::xml_node properties) {
    schema::SetBooleanAttribute(properties, "b", bold);
    schema::SetBooleanAttribute(properties, "i", italic);
  });
}

void DrawingFont::SetColor(const Variant& color) {
  const std::int32_t value = runtime::CLng(color);
  if (!IsColor(value)) throw CantSet("Color", "Font");
  Apply("Color", color,
        [&](pugi::xml_node properties) { SetFillColor(SetFill(properties, "solidFill"), value); });
}

void DrawingFont::SetBackground(std::int32_t background) {
  Log().Put([this] { return path_; }, "Background", background);
}

void DrawingFont::SetBold(bool value) {
  Apply("Bold", value,
        [&](pugi::xml_node properties) { schema::SetBooleanAttribute(properties, "b", value); });
}

}  // namespace plotsmith::xlsx
