#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartColorFormat;

class ChartFillFormat {
 public:
  virtual ~ChartFillFormat() = default;

  /// One of Office's pattern types (MsoPatternType).
  virtual void Patterned(std::int32_t pattern) = 0;
  virtual Ref<ChartColorFormat> ForeColor() = 0;
  virtual Ref<ChartColorFormat> BackColor() = 0;
  virtual void SetVisible(bool value) = 0;
};

}  // namespace plotsmith::excel
