#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class AxisTitle;
class Border;
class TickLabels;

/// One axis of a chart, of the primary group.
class Axis {
 public:
  virtual ~Axis() = default;

  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  /// Error 1004 while there is no title.
  virtual Ref<excel::AxisTitle> AxisTitle() = 0;
  virtual Ref<excel::TickLabels> TickLabels() = 0;
  virtual void SetHasMajorGridlines(bool value) = 0;
  virtual void SetHasMinorGridlines(bool value) = 0;
  /// As set, or as the host computes it from the data where it isn't; error 1004 on an axis of categories.
  virtual double MinimumScale() = 0;
  virtual void SetMinimumScale(double value) = 0;
  virtual double MaximumScale() = 0;
  virtual void SetMaximumScale(double value) = 0;
  /// In units of the axis; the host then no longer chooses it.
  virtual void SetMajorUnit(double value) = 0;
  virtual void SetMajorUnitIsAuto(bool value) = 0;
  /// Where the other axis crosses this one (XlAxisCrosses).
  virtual void SetCrosses(std::int32_t crosses) = 0;
  virtual void SetReversePlotOrder(bool value) = 0;
  /// XlScaleType.
  virtual void SetScaleType(std::int32_t type) = 0;
  /// XlDisplayUnit, or xlNone.
  virtual void SetDisplayUnit(std::int32_t unit) = 0;
  /// XlTickLabelPosition.
  virtual void SetTickLabelPosition(std::int32_t position) = 0;
  virtual Ref<excel::Border> Border() = 0;
};

}  // namespace plotsmith::excel
