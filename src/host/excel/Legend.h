#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;
class LegendEntries;

/// The built-in legend of a chart.
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
  /// Error 1004 where the legend stands at no such position.
  virtual std::int32_t Position() = 0;
  virtual double Left() = 0;
  virtual double Top() = 0;
  /// Null where the entries differ.
  virtual Variant AutoScaleFont() = 0;
  virtual Ref<excel::LegendEntries> LegendEntries() = 0;
};

}  // namespace plotsmith::excel
