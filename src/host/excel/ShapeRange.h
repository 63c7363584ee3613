#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;

/// Some shapes of a drawing, taken together.
class ShapeRange {
 public:
  virtual ~ShapeRange() = default;

  /// Error 1004 for more than one shape.
  virtual std::string Name() = 0;

  /// Points; error 1004 where the shapes differ.
  ///@{
  virtual double Width() = 0;
  virtual double Height() = 0;
  ///@}

  /// Of each of the shapes, as Shape::SetLeft and Shape::SetTop.
  ///@{
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// Makes the shapes one, which lies where the foremost of them lay; error 1004 for fewer than two. A host
  /// may know groups on charts only, and fail with 438 on a sheet.
  virtual Ref<Shape> Group() = 0;
};

}  // namespace plotsmith::excel
