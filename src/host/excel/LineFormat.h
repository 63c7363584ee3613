#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat;

/// The outline of a shape.
class LineFormat {
 public:
  virtual ~LineFormat() = default;

  /// Shows or hides the line. A line that is shown again has its automatic colour.
  virtual void SetVisible(bool value) = 0;
  /// Sets the weight in points, from 0 to 1584. Raises error 1004 if it is out of range.
  virtual void SetWeight(double points) = 0;
  /// The colour of the line. Setting it shows a hidden line.
  virtual Ref<ColorFormat> ForeColor() = 0;
  /// The second colour of a patterned line. Other lines don't show it.
  virtual Ref<ColorFormat> BackColor() = 0;
};

}  // namespace plotsmith::excel
