#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartColorFormat;

/// The filling of a part of a chart, as patterns have it.
class ChartFillFormat {
 public:
  virtual ~ChartFillFormat() = default;

  /// One of Office's pattern types (MsoPatternType).
  virtual void Patterned(std::int32_t pattern) = 0;
  /// The colours of the pattern's lines and of their ground.
  virtual Ref<ChartColorFormat> ForeColor() = 0;
  virtual Ref<ChartColorFormat> BackColor() = 0;
  virtual void SetVisible(bool value) = 0;
};

}  // namespace plotsmith::excel
