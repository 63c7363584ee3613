#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Series;

/// The series of a chart, in plot order.
class SeriesCollection {
 public:
  virtual ~SeriesCollection() = default;

  /// 0 for a chart that can't be read, so that such a one stops nobody who looks at all charts.
  virtual std::int32_t Count() = 0;
  /// In plot order; error 1004 outside.
  virtual Ref<Series> Item(std::int32_t index) = 0;
  /// Appends an empty series, of the type of the last one.
  virtual Ref<Series> NewSeries() = 0;
};

}  // namespace plotsmith::excel
