#pragma once

#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns true if any font is installed. The first call reads the list of fonts.
bool HasInstalledFonts();
/// Returns the family with which a font is drawn: its own family if that is installed, otherwise the
/// substitute. Never empty.
std::string DrawnFamily(const Font& font);

}  // namespace plotsmith::render
