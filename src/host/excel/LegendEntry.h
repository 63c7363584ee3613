#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// One entry of a legend.
class LegendEntry {
 public:
  virtual ~LegendEntry() = default;

  /// Takes the entry out of the legend; its series stays. The entries behind it move up.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
