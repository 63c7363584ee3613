#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// An outline, or a line. A weight or a colour also shows a line that was hidden.
class Border {
 public:
  virtual ~Border() = default;

  /// One of Excel's line styles (XlLineStyle); what isn't one leaves no line, as on a chart in Excel.
  /// xlAutomatic gives weight and colour back to the chart as well.
  virtual void SetLineStyle(std::int32_t style) = 0;
  /// XlBorderWeight; error 1004 for others.
  virtual void SetWeight(std::int32_t weight) = 0;
  /// Error 1004 for a number that is no colour.
  virtual void SetColor(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
