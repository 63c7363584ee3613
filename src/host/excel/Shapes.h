#pragma once

#include <string>
#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;
class ShapeRange;

/// The shapes on a sheet or on a chart, from back to front. A group counts as one shape.
class Shapes {
 public:
  virtual ~Shapes() = default;

  /// The number of shapes. On a sheet it includes the charts.
  virtual std::int32_t Count() = 0;
  /// Returns a shape by index. Raises error 1004 if the index is out of range.
  virtual Ref<Shape> Item(std::int32_t index) = 0;
  /// Returns the backmost shape with that name, ignoring case. Raises error 1004 if there is none.
  virtual Ref<Shape> Item(std::string_view name) = 0;
  /// Returns the shapes with these names. Raises error 1004 if a name doesn't exist, or if there are no
  /// names.
  virtual Ref<ShapeRange> Range(const std::vector<std::string>& names) = 0;
  /// Adds a text box in front of all other shapes. `orientation` is msoTextOrientationHorizontal; the other
  /// arguments are in points.
  virtual Ref<Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                                double height) = 0;
  /// Adds a shape in front of all others. `type` is an MsoAutoShapeType; the other arguments are in points.
  /// Raises error 1004 if the host doesn't support the type.
  virtual Ref<Shape> AddShape(std::int32_t type, double left, double top, double width, double height) = 0;
};

}  // namespace plotsmith::excel
