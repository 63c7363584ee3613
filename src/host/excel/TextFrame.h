#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Characters;

/// The text frame of a shape. Setting a property raises error 1004 for shapes without text.
class TextFrame {
 public:
  virtual ~TextFrame() = default;

  /// Returns `length` units of the text from position `start`, which counts from 1. A negative length means
  /// up to the end. Raises error 1004 if `start` is less than 1.
  virtual Ref<excel::Characters> Characters(std::int32_t start = 1, std::int32_t length = -1) = 0;
  /// Sets the horizontal alignment of the text in its box (XlHAlign). Raises error 1004 for others.
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  /// Sets the vertical alignment of the text in its box (XlVAlign). Raises error 1004 for others.
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  /// Sets the distance between the upper edge of the box and the text, in points. Raises error 1004 below 0.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
