#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class ColorFormat {
 public:
  virtual ~ColorFormat() = default;
  virtual void SetRGB(std::int32_t color) = 0;
};

}  // namespace plotsmith::excel
