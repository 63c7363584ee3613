#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;

/// The frame of a chart on a sheet.
class ChartObject {
 public:
  virtual ~ChartObject() = default;

  /// The name of its shape.
  virtual std::string Name() = 0;
  /// A chart that can't be read is handed out as well: it has no series, and all else is error 1004.
  virtual Ref<excel::Chart> Chart() = 0;
};

}  // namespace plotsmith::excel
