#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

/// The properties of a series' markers: the colours of outline and fill, the style, and the size.
enum class MarkerProperty { kOutline, kFill, kStyle, kSize };

/// Sets a property of a series' markers: a colour, a style (XlMarkerStyle) or a size in points. Returns false
/// for a value that Excel doesn't accept.
bool SetMarker(pugi::xml_node series, MarkerProperty which, std::int32_t value);

}  // namespace plotsmith::xlsx
