#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartColorFormat;

/// The filling of a part of a chart, as patterns have it.
class ChartFillFormat {
 public:
  virtual ~ChartFillFormat() = default;

  /// One of Office's pattern types (MsoPatternType), in black on white until the colours are set. Error 1004
  /// for others.
  virtual void Patterned(std::int32_t pattern) = 0;
  /// The colour of a pattern's lines. What has no pattern is filled with it.
  virtual Ref<ChartColorFormat> ForeColor() = 0;
  /// The colour of a pattern's ground. What has no pattern shows none of it.
  virtual Ref<ChartColorFormat> BackColor() = 0;
  /// False leaves no filling, True gives what has none its automatic one.
  virtual void SetVisible(bool value) = 0;
};

}  // namespace plotsmith::excel
