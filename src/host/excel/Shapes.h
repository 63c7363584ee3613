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

  virtual std::int32_t Count() = 0;
  virtual Ref<Shape> Item(std::int32_t index) = 0;
  /// Error 1004 if there is none of that name.
  virtual Ref<Shape> Item(std::string_view name) = 0;
  /// `orientation` 1 is horizontal; the rest is points.
  virtual Ref<Shape> AddTextbox(std::int32_t orientation, double left, double top, double width,
                                double height) = 0;
  /// `type` is one of MsoAutoShapeType; the rest is points.
  virtual Ref<Shape> AddShape(std::int32_t type, double left, double top, double width, double height) = 0;
  /// Error 1004 if there is none of a name.
  virtual Ref<ShapeRange> Range(const std::vector<std::string>& names) = 0;
};

}  // namespace plotsmith::excel
