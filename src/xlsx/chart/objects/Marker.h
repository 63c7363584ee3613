#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

enum class MarkerProperty { kOutline, kFilling, kStyle, kSize };

/// Sets a colour of a series' markers, their style (XlMarkerStyle) or their size in points. False for a value
/// that Excel doesn't take.
bool SetMarker(pugi::xml_node series, MarkerProperty which, std::int32_t value);

}  // namespace plotsmith::xlsx
