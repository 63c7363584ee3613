#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// An outline or a line. Setting the weight or the colour also shows a hidden line.
class Border {
 public:
  virtual ~Border() = default;

  /// Sets the line style (XlLineStyle). Other numbers hide the line, as on charts in Excel. xlAutomatic also
  /// makes the weight and the colour automatic.
  virtual void SetLineStyle(std::int32_t style) = 0;
  /// Sets the weight (XlBorderWeight). Raises error 1004 for others.
  virtual void SetWeight(std::int32_t weight) = 0;
  /// Sets the colour. Raises error 1004 for a number that isn't a colour.
  virtual void SetColor(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
