#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <string_view>

/// Fillings of DrawingML, inside shape, line and run properties.
namespace plotsmith::xlsx {

/// The filling, or a null node where it is left to a style.
pugi::xml_node FindFill(pugi::xml_node properties);
void RemoveFill(pugi::xml_node properties);
/// An empty filling of a kind ("noFill", "solidFill", "pattFill") in the place of any other.
pugi::xml_node SetFill(pugi::xml_node properties, std::string_view kind);
/// The colour of a filling, or of one of a pattern's two colours.
void SetFillColor(pugi::xml_node fill, std::int32_t color);

}  // namespace plotsmith::xlsx
