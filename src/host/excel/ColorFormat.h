#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A colour of a shape's fill or line.
class ColorFormat {
 public:
  virtual ~ColorFormat() = default;

  /// Sets the colour. Raises error 1004 for a number that isn't a colour.
  virtual void SetRGB(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
