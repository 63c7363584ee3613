#pragma once

#include <string>
#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;
class ShapeRange;

/// The shapes of a sheet, or on a chart, from back to front; a group counts as one.
class Shapes {
 public:
  virtual ~Shapes() = default;

  /// Of a sheet, with its charts.
  virtual std::int32_t Count() = 0;
  /// Error 1004 outside.
  virtual Ref<Shape> Item(std::int32_t index) = 0;
  /// The backmost of that name, case aside. Error 1004 if there is none.
  virtual Ref<Shape> Item(std::string_view name) = 0;
  /// Shapes of this drawing by their names. Error 1004 if there is none of a name, or no name.
  virtual Ref<ShapeRange> Range(const std::vector<std::string>& names) = 0;
  /// In front of all others. `orientation` is msoTextOrientationHorizontal; the rest is points.
  virtual Ref<Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                                double height) = 0;
  /// In front of all others. `type` is one of MsoAutoShapeType, error 1004 if the host doesn't know it; the
  /// rest is points.
  virtual Ref<Shape> AddShape(std::int32_t type, double left, double top, double width, double height) = 0;
};

}  // namespace plotsmith::excel
