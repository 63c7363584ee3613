#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The outline of a shape.
class LineFormat {
 public:
  virtual ~LineFormat() = default;

  /// A line that is shown again has its automatic colour.
  virtual void SetVisible(bool value) = 0;
  /// Points, from 0 to 1584; error 1004 outside.
  virtual void SetWeight(double points) = 0;
  /// The colour of the line. What is set shows a line that was hidden.
  virtual Ref<ColorFormat> ForeColor() = 0;
  /// The second colour of a line in a pattern; others show none of it.
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
