#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The filling of a shape.
class FillFormat {
 public:
  virtual ~FillFormat() = default;
  virtual Ref<ColorFormat> ForeColor() { Pending(); }
  virtual Ref<ColorFormat> BackColor() { Pending(); }
};

}  // namespace plotsmith::excel
