#include "xlsx/CellLook.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

#include "xlsx/drawing/Theme.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

/// Excel's limits.
constexpr long long kMostIndent = 250;
constexpr double kLeastFontSize = 1, kMostFontSize = 409;

/// Colours of the theme, as cell styles number them (ECMA-376-1, 18.8.3).
constexpr std::array<std::string_view, 12> kThemeColors = {"lt1",     "dk1",     "lt2",     "dk2",
                                                           "accent1", "accent2", "accent3", "accent4",
                                                           "accent5", "accent6", "hlink",   "folHlink"};

/// Converts a colour of DrawingML, which `tint` makes lighter or darker (ECMA-376-1, 18.8.19).
std::optional<std::int32_t> Tinted(const Theme& theme, const char* kind, std::string_view value,
                                   double tint) {
  constexpr double kWhole = 100000;
  pugi::xml_document document;
  pugi::xml_node color = document.append_child("color").append_child(kind);
  xml::SetAttribute(color, "val", value);
  const auto change = [&](const char* name, double share) {
    xml::SetAttribute(color.append_child(name), "val", xml::Number(std::round(share * kWhole)));
  };
  tint = std::clamp(tint, -1.0, 1.0);
  if (tint != 0) change("lumMod", 1 - std::abs(tint));
  if (tint > 0) change("lumOff", tint);
  return theme.Color(document.first_child());
}

/// Reads a CT_Color.
std::optional<std::int32_t> ColorOf(pugi::xml_node color, const Styles& styles, const Theme& theme) {
  if (!color || xml::BooleanAttribute(color, "auto", false)) return std::nullopt;
  const double tint = xml::NumberAttribute(color, "tint", 0);
  const auto themed = xml::IntegerAttribute(color, "theme", -1);
  if (themed >= 0 && themed < static_cast<long long>(kThemeColors.size()))
    return Tinted(theme, "schemeClr", kThemeColors[static_cast<std::size_t>(themed)], tint);
  auto rgb = ParseRgb(xml::Attribute(color, "rgb"));
  // The first eight indices are fixed colours. The palette follows, and then the colours of the window.
  const auto indexed = xml::IntegerAttribute(color, "indexed", -1);
  if (indexed >= 0 && indexed < 8) rgb = DefaultPaletteColor(static_cast<std::int32_t>(indexed) + 1);
  if (indexed >= 8 && indexed < 64) rgb = styles.PaletteColor(static_cast<std::int32_t>(indexed) - 7);
  return rgb ? Tinted(theme, "srgbClr", RgbText(*rgb), tint) : std::nullopt;
}

/// Reduces a fill to one colour: the background of a pattern, or the first colour of a gradient.
std::optional<std::int32_t> FillColorOf(pugi::xml_node fill, const Styles& styles, const Theme& theme) {
  if (const auto gradient = xml::Child(fill, "gradientFill"))
    return ColorOf(xml::Child(gradient, "stop", "color"), styles, theme);
  const auto pattern = xml::Child(fill, "patternFill");
  const std::string type = xml::Attribute(pattern, "patternType", "none");
  if (type == "none") return std::nullopt;
  return ColorOf(xml::Child(pattern, type == "solid" ? "fgColor" : "bgColor"), styles, theme);
}

HorizontalAlignment HorizontalOf(const std::string& text) {
  static constexpr std::array<std::pair<std::string_view, HorizontalAlignment>, 7> kNames = {
      {{"left", HorizontalAlignment::kLeft},
       {"center", HorizontalAlignment::kCenter},
       {"right", HorizontalAlignment::kRight},
       {"fill", HorizontalAlignment::kFill},
       {"justify", HorizontalAlignment::kLeft},
       {"centerContinuous", HorizontalAlignment::kCenterAcross},
       {"distributed", HorizontalAlignment::kCenter}}};
  const auto found =
      std::find_if(kNames.begin(), kNames.end(), [&](const auto& entry) { return entry.first == text; });
  return found == kNames.end() ? HorizontalAlignment::kGeneral : found->second;
}

VerticalAlignment VerticalOf(const std::string& text) {
  if (text == "top" || text == "justify") return VerticalAlignment::kTop;
  return text == "center" || text == "distributed" ? VerticalAlignment::kCenter : VerticalAlignment::kBottom;
}

/// Reads the border of one edge. `edges` are the possible names of its element: some files have "start"
/// instead of "left".
BorderLine BorderOf(pugi::xml_node border, std::initializer_list<std::string_view> edges,
                    const Styles& styles, const Theme& theme) {
  for (const std::string_view edge : edges) {
    const auto line = xml::Child(border, edge);
    const std::string style = xml::Attribute(line, "style", "none");
    if (style == "none") continue;
    const int width = style == "thick" ? 3 : style.starts_with("medium") || style == "double" ? 2 : 1;
    return {width, ColorOf(xml::Child(line, "color"), styles, theme)};
  }
  return {};
}

/// Returns true if an element such as `b` is present and not switched off.
bool Has(pugi::xml_node font, std::string_view element) {
  const auto node = xml::Child(font, element);
  return node && xml::BooleanAttribute(node, "val", true);
}

}  // namespace

CellLook LookOf(const Styles& styles, const Theme& theme, std::uint32_t style) {
  CellLook look;
  const auto alignment = styles.AlignmentOf(style);
  look.horizontal = HorizontalOf(xml::Attribute(alignment, "horizontal"));
  look.vertical = VerticalOf(xml::Attribute(alignment, "vertical"));
  look.indent = static_cast<int>(std::clamp(xml::IntegerAttribute(alignment, "indent", 0), 0LL, kMostIndent));
  look.wrap = xml::BooleanAttribute(alignment, "wrapText", false) ||
              xml::Attribute(alignment, "horizontal") == "justify";

  const auto font = styles.FontOf(style);
  look.bold = Has(font, "b");
  look.italic = Has(font, "i");
  look.strike = Has(font, "strike");
  const auto underline = xml::Child(font, "u");
  look.underline = underline && xml::Attribute(underline, "val", "single") != "none";
  look.font = xml::Attribute(xml::Child(font, "name"), "val", styles.NormalFontName());
  const double size = xml::NumberAttribute(xml::Child(font, "sz"), "val", styles.NormalFontSize());
  look.size = std::clamp(size, kLeastFontSize, kMostFontSize);
  look.textColor = ColorOf(xml::Child(font, "color"), styles, theme);
  look.fillColor = FillColorOf(styles.FillOf(style), styles, theme);

  const auto border = styles.BorderOf(style);
  look.left = BorderOf(border, {"left", "start"}, styles, theme);
  look.top = BorderOf(border, {"top"}, styles, theme);
  look.right = BorderOf(border, {"right", "end"}, styles, theme);
  look.bottom = BorderOf(border, {"bottom"}, styles, theme);
  return look;
}

}  // namespace plotsmith::xlsx
