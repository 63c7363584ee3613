#pragma once

#include <cstdint>
#include <string>

namespace plotsmith::forms {

/// The font of a form or of a control, by the members of the StdFont object.
struct Font {
  std::string Name = "Tahoma";  ///< the typeface; empty lets the system choose its own
  double Size = 8;              ///< points
  std::int32_t Charset = 0;     ///< a character set of Windows, such as 0 (ANSI) or 128 (Shift-JIS)
  bool Bold = false;            ///< whether it is bold
};

}  // namespace plotsmith::forms
