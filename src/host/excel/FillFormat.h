#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The filling of a shape.
class FillFormat {
 public:
  virtual ~FillFormat() = default;
  virtual Ref<ColorFormat> ForeColor() = 0;
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
