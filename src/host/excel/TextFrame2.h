#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The text frame of a shape in hosts from version 12 on. Setting a property raises error 1004 for shapes
/// without text.
class TextFrame2 {
 public:
  virtual ~TextFrame2() = default;

  /// Sets whether lines wrap at the edge of the box.
  virtual void SetWordWrap(bool value) = 0;
  /// Sets the automatic size (MsoAutoSize). With 1 the shape takes the size of its text, now and whenever the
  /// text changes, until its width or height is set. Raises error 1004 for others.
  virtual void SetAutoSize(std::int32_t value) = 0;
  /// Sets the top margin in points, like TextFrame::SetMarginTop.
  virtual void SetMarginTop(double points) = 0;
};

}  // namespace plotsmith::excel
