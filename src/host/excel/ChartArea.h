#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class ChartFillFormat;
class Interior;

/// The whole of a chart: its ground and its frame.
class ChartArea {
 public:
  virtual ~ChartArea() = default;

  /// Points: the width of the chart's frame, in Excel less a border of its own.
  virtual double Width() = 0;
  /// The ground, by colour and XlPattern.
  virtual Ref<excel::Interior> Interior() = 0;
  /// The same ground, by MsoPatternType and palette.
  virtual Ref<ChartFillFormat> Fill() = 0;
  /// The frame.
  virtual Ref<excel::Border> Border() = 0;
  /// Whether fonts follow the chart's size. Hosts from version 12 on accept it, and nothing follows.
  virtual void SetAutoScaleFont(const Variant& value) = 0;
};

}  // namespace plotsmith::excel
