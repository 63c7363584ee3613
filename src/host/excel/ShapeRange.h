#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;

/// Several shapes of one drawing.
class ShapeRange {
 public:
  virtual ~ShapeRange() = default;

  /// The name of the shape. Raises error 1004 if there are several shapes.
  virtual std::string Name() = 0;

  /// The size in points. Raises error 1004 if the shapes differ.
  ///@{
  virtual double Width() = 0;
  virtual double Height() = 0;
  ///@}

  /// Set the position of each shape, like Shape::SetLeft and Shape::SetTop.
  ///@{
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// Groups the shapes and returns the group, which takes the place of the front shape. Raises error 1004 for
  /// fewer than two shapes. A host may support groups only on charts and raise error 438 on a sheet.
  virtual Ref<Shape> Group() = 0;
};

}  // namespace plotsmith::excel
