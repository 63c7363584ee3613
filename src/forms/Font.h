#pragma once

#include <cstdint>
#include <string>

namespace plotsmith::forms {

/// The font of a form or a control.
struct Font {
  std::string Name;          ///< the typeface; "" lets the system choose its user interface font
  double Size = 8;           ///< points
  std::int32_t Charset = 1;  ///< a Windows character set; 1 is DEFAULT_CHARSET
  bool Bold = false;
};

}  // namespace plotsmith::forms
