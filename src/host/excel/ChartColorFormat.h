#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A colour of a fill on a chart.
class ChartColorFormat {
 public:
  virtual ~ChartColorFormat() = default;

  /// Sets the colour to an entry of the palette. Raises error 9 if the index is out of range.
  virtual void SetSchemeColor(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel
