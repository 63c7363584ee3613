#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The fill of a shape.
class FillFormat {
 public:
  virtual ~FillFormat() = default;

  /// The colour of the fill, or of a pattern's lines. Setting it on a shape without a pattern makes the fill
  /// solid.
  virtual Ref<ColorFormat> ForeColor() = 0;
  /// The colour of a pattern's background. A shape without a pattern doesn't show it.
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
