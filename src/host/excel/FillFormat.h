#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The filling of a shape.
class FillFormat {
 public:
  virtual ~FillFormat() = default;

  /// The colour of the filling, or of a pattern's lines. What is set fills a shape that has no pattern.
  virtual Ref<ColorFormat> ForeColor() = 0;
  /// The colour of a pattern's ground. A shape without a pattern shows none of it.
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
