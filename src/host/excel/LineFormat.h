#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The outline of a shape.
class LineFormat {
 public:
  virtual ~LineFormat() = default;
  virtual void SetVisible(bool value) { Pending(); }
  /// Points.
  virtual void SetWeight(double points) { Pending(); }
  virtual Ref<ColorFormat> ForeColor() { Pending(); }
  virtual Ref<ColorFormat> BackColor() { Pending(); }
};

}  // namespace plotsmith::excel
