#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class LegendEntry {
 public:
  virtual ~LegendEntry() = default;
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
