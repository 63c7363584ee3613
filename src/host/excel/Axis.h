#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class AxisTitle;
class Border;
class TickLabels;

class Axis {
 public:
  virtual ~Axis() = default;

  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  /// Error 1004 while there is no title.
  virtual Ref<excel::AxisTitle> AxisTitle() = 0;
  virtual Ref<excel::TickLabels> TickLabels() = 0;
  virtual void SetHasMajorGridlines(bool value) { Pending(); }
  virtual void SetHasMinorGridlines(bool value) { Pending(); }
  /// As set, or as the host computes it from the data where it isn't; error 1004 on an axis of categories.
  virtual double MinimumScale() { Pending(); }
  virtual void SetMinimumScale(double value) { Pending(); }
  virtual double MaximumScale() { Pending(); }
  virtual void SetMaximumScale(double value) { Pending(); }
  virtual void SetMajorUnit(double value) { Pending(); }
  virtual void SetMajorUnitIsAuto(bool value) { Pending(); }
  /// Where the other axis crosses this one (XlAxisCrosses).
  virtual void SetCrosses(std::int32_t crosses) { Pending(); }
  virtual void SetReversePlotOrder(bool value) { Pending(); }
  /// XlScaleType.
  virtual void SetScaleType(std::int32_t type) { Pending(); }
  /// XlDisplayUnit, or xlNone.
  virtual void SetDisplayUnit(std::int32_t unit) { Pending(); }
  /// XlTickLabelPosition.
  virtual void SetTickLabelPosition(std::int32_t position) { Pending(); }
  virtual Ref<excel::Border> Border() { Pending(); }
};

}  // namespace plotsmith::excel
