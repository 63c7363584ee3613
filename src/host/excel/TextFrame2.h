#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The frame of a shape's text, as hosts from version 12 on have it.
class TextFrame2 {
 public:
  virtual ~TextFrame2() = default;
  virtual void SetWordWrap(bool value) = 0;
  /// MsoAutoSize.
  virtual void SetAutoSize(std::int32_t value) = 0;
  /// Points.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
