#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A colour of a chart's filling.
class ChartColorFormat {
 public:
  virtual ~ChartColorFormat() = default;

  /// An index into the palette; error 9 outside.
  virtual void SetSchemeColor(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel
