#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Series;

/// The series of a chart, in plot order.
class SeriesCollection {
 public:
  virtual ~SeriesCollection() = default;

  /// The number of series. It is 0 for a chart that can't be read, so that loops over all charts don't fail.
  virtual std::int32_t Count() = 0;
  /// Returns a series by its index in plot order. Raises error 1004 if the index is out of range.
  virtual Ref<Series> Item(std::int32_t index) = 0;
  /// Appends an empty series with the type of the last series.
  virtual Ref<Series> NewSeries() = 0;
};

}  // namespace plotsmith::excel
