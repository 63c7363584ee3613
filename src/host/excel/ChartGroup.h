#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The series of a chart that are drawn in one way.
class ChartGroup {
 public:
  virtual ~ChartGroup() = default;

  /// Between the columns or bars of two categories: percent of a column's width, from 0 to 500. Error 1004
  /// outside, and for a group of neither columns nor bars.
  virtual void SetGapWidth(std::int32_t percent) = 0;
};

}  // namespace plotsmith::excel
