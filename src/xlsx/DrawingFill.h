#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

/// Fillings and colours of DrawingML, inside shape, line and run properties of a chart.
namespace plotsmith::xlsx {

/// Excel's colour (red + 256 * green + 65536 * blue) as the file writes it, "RRGGBB".
std::string RgbText(std::int32_t color);
/// From "RRGGBB", or "AARRGGBB".
std::optional<std::int32_t> ParseRgb(std::string_view text);

/// Whether a number is one of Excel's colours.
constexpr bool IsColor(std::int32_t value) { return value >= 0 && value <= 0xFFFFFF; }

/// The filling, or a null node where it is left to the chart's style.
pugi::xml_node FindFill(pugi::xml_node properties);
void RemoveFill(pugi::xml_node properties);
/// An empty filling of a kind ("noFill", "solidFill", "pattFill") in the place of any other.
pugi::xml_node SetFill(pugi::xml_node properties, std::string_view kind);
/// The colour of a filling, or of one of a pattern's two colours.
void SetFillColor(pugi::xml_node fill, std::int32_t color);

}  // namespace plotsmith::xlsx
