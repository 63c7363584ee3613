#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;

/// A chart frame on a worksheet.
class ChartObject {
 public:
  virtual ~ChartObject() = default;

  /// The name of the frame's shape.
  virtual std::string Name() = 0;
  /// The chart. For a chart that can't be read this returns an object without series, whose other members
  /// raise error 1004.
  virtual Ref<excel::Chart> Chart() = 0;
};

}  // namespace plotsmith::excel
