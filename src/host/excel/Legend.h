#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

class Legend {
 public:
  virtual ~Legend() = default;

  virtual Ref<excel::Font> Font() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  /// One of Excel's legend positions (XlLegendPosition).
  virtual void SetPosition(std::int32_t position) = 0;
  /// Points from the chart's corner. Error 1004 outside of the chart.
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
};

}  // namespace plotsmith::excel
