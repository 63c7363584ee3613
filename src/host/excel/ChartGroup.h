#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The series of a chart that are drawn in the same way.
class ChartGroup {
 public:
  virtual ~ChartGroup() = default;

  /// Sets the gap between the columns or bars of two categories, in percent of the column width, from 0 to
  /// 500. Raises error 1004 if the value is out of range, and for groups other than columns and bars.
  virtual void SetGapWidth(std::int32_t percent) = 0;
};

}  // namespace plotsmith::excel
