#include "xlsx/drawing/Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "xlsx/drawing/DefaultTheme.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kWhole = 100000;  // DrawingML's percentages are in thousandths
constexpr double kDegree = 60000;

/// The usual colour map (ECMA-376-1, 20.1.6.2), which nearly every workbook has.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kColorMap = {
    {{"bg1", "lt1"}, {"tx1", "dk1"}, {"bg2", "lt2"}, {"tx2", "dk2"}}};

/// The preset colours that programs write (ECMA-376-1, 20.1.10.48), as RRGGBB.
constexpr std::array<std::pair<std::string_view, std::string_view>, 24> kPresets = {
    {{"black", "000000"},   {"white", "FFFFFF"},   {"red", "FF0000"},      {"green", "008000"},
     {"blue", "0000FF"},    {"yellow", "FFFF00"},  {"cyan", "00FFFF"},     {"aqua", "00FFFF"},
     {"magenta", "FF00FF"}, {"fuchsia", "FF00FF"}, {"gray", "808080"},     {"grey", "808080"},
     {"silver", "C0C0C0"},  {"maroon", "800000"},  {"navy", "000080"},     {"olive", "808000"},
     {"purple", "800080"},  {"teal", "008080"},    {"lime", "00FF00"},     {"orange", "FFA500"},
     {"brown", "A52A2A"},   {"pink", "FFC0CB"},    {"darkBlue", "00008B"}, {"darkRed", "8B0000"}}};

/// Returns a percentage of DrawingML as a fraction. The file has it in thousandths of a percent or, if it is
/// Strict, as a text such as "65%".
double Fraction(pugi::xml_node node, const char* name, double fallback) {
  const std::string text = xml::Attribute(node, name);
  if (text.ends_with('%')) return xml::ParseDouble(text.substr(0, text.size() - 1)).value_or(0) / 100;
  return xml::ParseDouble(text).value_or(fallback * kWhole) / kWhole;
}

/// Channels from 0 to 1.
struct Rgb {
  double red = 0, green = 0, blue = 0;
};
struct Hsl {
  double hue = 0, saturation = 0, lightness = 0;  ///< the hue in turns
};

Rgb Channels(std::int32_t color) {
  return {(color & 0xFF) / 255.0, (color >> 8 & 0xFF) / 255.0, (color >> 16 & 0xFF) / 255.0};
}

std::int32_t Packed(const Rgb& rgb) {
  const auto byte = [](double channel) {
    // Halves are rounded down: half of white is 7F7F7F in Excel's palette.
    const double inside = channel > 0 ? std::min(channel, 1.0) : 0;  // 0 for NaN
    return static_cast<std::int32_t>(std::ceil(inside * 255 - 0.5));
  };
  return byte(rgb.red) | byte(rgb.green) << 8 | byte(rgb.blue) << 16;
}

Hsl ToHsl(const Rgb& rgb) {
  const double most = std::max({rgb.red, rgb.green, rgb.blue});
  const double least = std::min({rgb.red, rgb.green, rgb.blue});
  const double range = most - least;
  Hsl hsl{0, 0, (most + least) / 2};
  if (range == 0) return hsl;
  hsl.saturation = range / (1 - std::abs(2 * hsl.lightness - 1));
  if (most == rgb.red) {
    hsl.hue = (rgb.green - rgb.blue) / range / 6;
  } else if (most == rgb.green) {
    hsl.hue = ((rgb.blue - rgb.red) / range + 2) / 6;
  } else {
    hsl.hue = ((rgb.red - rgb.green) / range + 4) / 6;
  }
  return hsl;
}

Rgb ToRgb(const Hsl& hsl) {
  const double saturation = std::clamp(hsl.saturation, 0.0, 1.0);
  const double lightness = std::clamp(hsl.lightness, 0.0, 1.0);
  const double reach = saturation * std::min(lightness, 1 - lightness);
  const auto channel = [&](double offset) {
    double k = std::fmod(offset + hsl.hue * 12, 12);
    if (k < 0) k += 12;
    return lightness - reach * std::clamp(std::min(k - 3, 9 - k), -1.0, 1.0);
  };
  return {channel(0), channel(8), channel(4)};
}

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}
double Gamma(double linear) {
  return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

template <class Change>
Rgb InLinearLight(const Rgb& rgb, const Change& change) {
  return {Gamma(change(Linear(rgb.red))), Gamma(change(Linear(rgb.green))), Gamma(change(Linear(rgb.blue)))};
}

/// Applies the modifications inside a colour element, in their order (ECMA-376-1, 20.1.2.3).
std::int32_t Modified(std::int32_t color, pugi::xml_node element) {
  Rgb rgb = Channels(color);
  for (const pugi::xml_node& change : element.children()) {
    const std::string_view name = xml::LocalName(change);
    const double amount = Fraction(change, "val", 1);
    Hsl hsl = ToHsl(rgb);
    if (name == "lumMod") {
      hsl.lightness *= amount;
    } else if (name == "lumOff") {
      hsl.lightness += amount;
    } else if (name == "lum") {
      hsl.lightness = amount;
    } else if (name == "satMod") {
      hsl.saturation *= amount;
    } else if (name == "satOff") {
      hsl.saturation += amount;
    } else if (name == "sat") {
      hsl.saturation = amount;
    } else if (name == "hueMod") {
      hsl.hue *= amount;
    } else if (name == "hueOff") {
      hsl.hue += xml::NumberAttribute(change, "val", 0) / kDegree / 360;
    } else if (name == "shade") {
      rgb = InLinearLight(rgb, [&](double light) { return light * amount; });
      continue;
    } else if (name == "tint") {
      rgb = InLinearLight(rgb, [&](double light) { return light * amount + (1 - amount); });
      continue;
    } else if (name == "inv") {
      rgb = {1 - rgb.red, 1 - rgb.green, 1 - rgb.blue};
      continue;
    } else {
      continue;  // Excel's object model has no transparent colours
    }
    hsl.lightness = std::clamp(hsl.lightness, 0.0, 1.0);
    rgb = ToRgb(hsl);
  }
  return Packed(rgb);
}

std::optional<std::int32_t> Preset(std::string_view name) {
  for (const auto& [preset, rgb] : kPresets) {
    if (preset == name) return ParseRgb(rgb);
  }
  return std::nullopt;
}

}  // namespace

Theme::Theme(std::string_view part) {
  Read(DefaultTheme(kTransitional));
  if (!part.empty()) Read(part);
}

Theme Theme::WithOverride(std::string_view part) const {
  Theme theme = *this;
  theme.Read(part);
  return theme;
}

void Theme::Read(std::string_view part) {
  pugi::xml_document document;
  try {
    xml::Parse(document, part);
  } catch (const PackageError&) {
    return;  // A chart can be read even if its theme can't.
  }
  const pugi::xml_node root = xml::Root(document);
  const auto elements = xml::Child(root, "themeElements");
  const pugi::xml_node parent = elements ? elements : root;  // the colours in an override
  for (const pugi::xml_node& entry : xml::Child(parent, "clrScheme").children()) {
    if (const auto color = Color(entry)) colors_[std::string(xml::LocalName(entry))] = *color;
  }
  const auto fonts = xml::Child(parent, "fontScheme");
  const auto take = [&](const char* which, std::string& typeface) {
    const std::string found = xml::Attribute(xml::Child(fonts, which, "latin"), "typeface");
    if (!found.empty()) typeface = found;
  };
  take("majorFont", major_);
  take("minorFont", minor_);
}

std::string Theme::Typeface(std::string_view name) const {
  if (name.starts_with("+mn")) return minor_;
  if (name.starts_with("+mj")) return major_;
  return std::string(name);
}

std::optional<std::int32_t> Theme::SchemeColor(std::string_view name) const {
  for (const auto& [mapped, scheme] : kColorMap) {
    if (mapped == name) name = scheme;
  }
  const auto found = colors_.find(name);
  return found == colors_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::int32_t> Theme::Color(pugi::xml_node holder, pugi::xml_node map) const {
  for (const pugi::xml_node& element : holder.children()) {
    const std::string_view kind = xml::LocalName(element);
    const std::string value = xml::Attribute(element, "val");
    std::optional<std::int32_t> color;
    if (kind == "srgbClr") {
      color = ParseRgb(value);
    } else if (kind == "sysClr") {
      color = ParseRgb(xml::Attribute(element, "lastClr", value == "window" ? "FFFFFF" : "000000"));
    } else if (kind == "schemeClr") {
      color = SchemeColor(xml::Attribute(map, value.c_str(), value));
    } else if (kind == "prstClr") {
      color = Preset(value);
    } else if (kind == "scrgbClr") {
      const auto channel = [&](const char* name) { return Gamma(Fraction(element, name, 0)); };
      color = Packed({channel("r"), channel("g"), channel("b")});
    } else if (kind == "hslClr") {
      color = Packed(ToRgb({xml::NumberAttribute(element, "hue", 0) / kDegree / 360,
                            Fraction(element, "sat", 0), Fraction(element, "lum", 0)}));
    } else {
      continue;
    }
    if (color) return Modified(*color, element);
    return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace plotsmith::xlsx
