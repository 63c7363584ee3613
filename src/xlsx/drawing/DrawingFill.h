#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <string_view>

/// The fills of DrawingML, inside shape, line and run properties.
namespace plotsmith::xlsx {

/// The fill, or a null node if a style determines it.
pugi::xml_node FindFill(pugi::xml_node properties);
/// Removes the fill, so that a style determines it.
void RemoveFill(pugi::xml_node properties);
/// Replaces the fill by an empty one of a kind ("noFill", "solidFill", "pattFill").
pugi::xml_node SetFill(pugi::xml_node properties, std::string_view kind);
/// Sets the colour of a fill, or of one of the two colours of a pattern, as red + 256 * green + 65536 * blue.
void SetFillColor(pugi::xml_node fill, std::int32_t color);

}  // namespace plotsmith::xlsx
