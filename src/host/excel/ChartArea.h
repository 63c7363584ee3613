#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class ChartFillFormat;
class Interior;

/// The area of a whole chart, with its fill and its border.
class ChartArea {
 public:
  virtual ~ChartArea() = default;

  /// The width of the chart's frame in points. Excel subtracts a border.
  virtual double Width() = 0;
  /// The fill, described by colours and XlPattern.
  virtual Ref<excel::Interior> Interior() = 0;
  /// The same fill, described by MsoPatternType and palette indices.
  virtual Ref<ChartFillFormat> Fill() = 0;
  /// The border.
  virtual Ref<excel::Border> Border() = 0;
  /// Sets whether fonts scale with the chart. Hosts from version 12 on accept the setting and ignore it.
  virtual void SetAutoScaleFont(const Variant& value) = 0;
};

}  // namespace plotsmith::excel
