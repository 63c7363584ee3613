#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;

/// Some shapes of a drawing, taken together.
class ShapeRange {
 public:
  virtual ~ShapeRange() = default;
  virtual std::string Name() = 0;
  virtual double Width() = 0;
  virtual double Height() = 0;
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  /// Makes the shapes one; error 1004 for fewer than two.
  virtual Ref<Shape> Group() = 0;
};

}  // namespace plotsmith::excel
