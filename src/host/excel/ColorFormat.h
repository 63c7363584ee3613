#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A colour of a shape's filling or line.
class ColorFormat {
 public:
  virtual ~ColorFormat() = default;

  /// Error 1004 for a number that is no colour.
  virtual void SetRGB(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
