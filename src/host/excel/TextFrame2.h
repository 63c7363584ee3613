#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The frame of a shape's text, as hosts from version 12 on have it. To set anything of it is error 1004 for
/// a shape that can't bear a text.
class TextFrame2 {
 public:
  virtual ~TextFrame2() = default;

  /// Whether lines break at the box's edge.
  virtual void SetWordWrap(bool value) = 0;
  /// MsoAutoSize; error 1004 for others. At 1 the shape takes the size of its text, now and whenever the text
  /// changes, until its width or height is set.
  virtual void SetAutoSize(std::int32_t value) = 0;
  /// Points, as TextFrame::SetMarginTop.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
