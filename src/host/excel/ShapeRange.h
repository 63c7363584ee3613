#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;

/// Some shapes of a drawing, taken together.
class ShapeRange {
 public:
  virtual ~ShapeRange() = default;
  virtual std::string Name() { Pending(); }
  virtual double Width() { Pending(); }
  virtual double Height() { Pending(); }
  virtual void SetLeft(double points) { Pending(); }
  virtual void SetTop(double points) { Pending(); }
  /// Makes the shapes one; error 1004 for fewer than two.
  virtual Ref<Shape> Group() { Pending(); }
};

}  // namespace plotsmith::excel
