#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// An entry of a legend.
class LegendEntry {
 public:
  virtual ~LegendEntry() = default;

  /// Deletes the entry from the legend and keeps its series. The indices of the following entries decrease.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
