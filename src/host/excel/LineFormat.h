#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The outline of a shape.
class LineFormat {
 public:
  virtual ~LineFormat() = default;
  virtual void SetVisible(bool value) = 0;
  /// Points.
  virtual void SetWeight(double points) = 0;
  virtual Ref<ColorFormat> ForeColor() = 0;
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
