#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartColorFormat;

/// The fill of a chart element.
class ChartFillFormat {
 public:
  virtual ~ChartFillFormat() = default;

  /// Sets a pattern (MsoPatternType). Its colours are black on white until they are set. Raises error 1004
  /// for others.
  virtual void Patterned(std::int32_t pattern) = 0;
  /// The colour of the pattern's lines. Setting it on a fill without a pattern sets the colour of the fill.
  virtual Ref<ChartColorFormat> ForeColor() = 0;
  /// The colour of the pattern's background. A fill without a pattern doesn't show it.
  virtual Ref<ChartColorFormat> BackColor() = 0;
  /// Sets whether the element is filled. False removes the fill; true gives an unfilled element its automatic
  /// fill.
  virtual void SetVisible(bool value) = 0;
};

}  // namespace plotsmith::excel
