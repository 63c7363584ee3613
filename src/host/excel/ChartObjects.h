#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartObject;

/// The chart frames of a worksheet, from back to front.
class ChartObjects {
 public:
  virtual ~ChartObjects() = default;

  /// The number of chart frames, without other shapes.
  virtual std::int32_t Count() = 0;
  /// Returns a frame by the name of its shape, ignoring case. Raises error 1004 if there is none.
  virtual Ref<ChartObject> Item(std::string_view name) = 0;
  /// Adds an empty chart. Positions are in points from the top left corner of the sheet.
  virtual Ref<ChartObject> Add(double left, double top, double width, double height) = 0;
};

}  // namespace plotsmith::excel
