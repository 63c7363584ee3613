#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

/// The properties of the markers of a series: the colours of outline and fill, the style, the size.
enum class MarkerProperty { kOutline, kFilling, kStyle, kSize };

/// Sets a property of a series' markers: a colour, a style (XlMarkerStyle) or a size in points. False for a
/// value that Excel doesn't take.
bool SetMarker(pugi::xml_node series, MarkerProperty which, std::int32_t value);

}  // namespace plotsmith::xlsx
