#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The title of a chart.
class ChartTitle {
 public:
  virtual ~ChartTitle() = default;

  virtual void SetText(std::string_view text) = 0;
  virtual std::string Text() = 0;
};

}  // namespace plotsmith::excel
