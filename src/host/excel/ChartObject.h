#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;

/// The frame of a chart on a sheet.
class ChartObject {
 public:
  virtual ~ChartObject() = default;

  virtual std::string Name() = 0;
  virtual Ref<excel::Chart> Chart() = 0;
};

}  // namespace plotsmith::excel
