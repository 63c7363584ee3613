#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The label of one point.
class DataLabel {
 public:
  virtual ~DataLabel() = default;
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace plotsmith::excel
