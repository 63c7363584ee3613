#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ChartObject;

/// The chart frames of a sheet, from back to front.
class ChartObjects {
 public:
  virtual ~ChartObjects() = default;

  /// Of the charts; the sheet's other shapes don't count.
  virtual std::int32_t Count() = 0;
  /// By the name of its shape, case aside; error 1004 if there is none.
  virtual Ref<ChartObject> Item(std::string_view name) = 0;
  /// An empty chart, in points from the sheet's corner.
  virtual Ref<ChartObject> Add(double left, double top, double width, double height) = 0;
};

}  // namespace plotsmith::excel
