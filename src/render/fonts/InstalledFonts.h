#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns true if any font is installed. The first call reads the list of fonts.
bool HasInstalledFonts();
/// Returns the family with which a font is drawn: its own family if that is installed, otherwise the
/// substitute. Never empty.
std::string DrawnFamily(const Font& font);

/// Hashes fonts.
struct FontHash {
  /// Returns the hash of a font.
  std::size_t operator()(const Font& font) const {
    const std::size_t look = (font.bold ? 1u : 0u) + (font.italic ? 2u : 0u) + (font.underline ? 4u : 0u);
    return std::hash<std::string>()(font.family) ^ (std::hash<double>()(font.size) * 8 + look);
  }
};

}  // namespace plotsmith::render
