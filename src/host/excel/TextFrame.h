#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Characters;

/// The text of a shape, as a box.
class TextFrame {
 public:
  virtual ~TextFrame() = default;

  /// From `start`, `length` units or, if that is negative, all that follows.
  virtual Ref<excel::Characters> Characters(std::int32_t start = 1, std::int32_t length = -1) = 0;
  /// XlVAlign and XlHAlign.
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  /// Points.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
