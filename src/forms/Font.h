#pragma once

#include <cstdint>
#include <string>

namespace plotsmith::forms {

/// The font of a form or of a control, with the members of the StdFont object.
struct Font {
  std::string Name = "Tahoma";  ///< The typeface; empty for the system's default.
  double Size = 8;              ///< The size in points.
  std::int32_t Charset = 0;     ///< The Windows character set, such as 0 (ANSI) or 128 (Shift-JIS).
  bool Bold = false;            ///< Whether the font is bold.
};

}  // namespace plotsmith::forms
