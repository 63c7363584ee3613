#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Shape;

/// The shapes of a sheet from back to front.
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
};

}  // namespace plotsmith::excel
