#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Characters;

/// The text of a shape, as a box. To set anything of it is error 1004 for a shape that can't bear a text.
class TextFrame {
 public:
  virtual ~TextFrame() = default;

  /// From `start`, `length` units or, if that is negative, all that follows. Error 1004 for a start before 1.
  virtual Ref<excel::Characters> Characters(std::int32_t start = 1, std::int32_t length = -1) = 0;
  /// Where the text stands in its box (XlHAlign); error 1004 for others.
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  /// Where the text stands in its box (XlVAlign); error 1004 for others.
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  /// Points between the box's upper edge and the text; error 1004 below 0.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
