#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// An outline, or a line.
class Border {
 public:
  virtual ~Border() = default;

  /// One of Excel's line styles (XlLineStyle); what isn't one leaves no line, as on a chart in Excel.
  virtual void SetLineStyle(std::int32_t style) = 0;
  /// XlBorderWeight.
  virtual void SetWeight(std::int32_t weight) = 0;
  virtual void SetColor(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
