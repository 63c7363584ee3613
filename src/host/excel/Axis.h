#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class AxisTitle;
class Border;
class TickLabels;

/// One axis of a chart, of the primary group: of categories or of values. Points of two values, as scatters
/// and bubbles have them, have two axes of values, and that of X answers to xlCategory.
class Axis {
 public:
  virtual ~Axis() = default;

  /// Whether a title stands along the axis. One that is taken away is gone with its text and its look.
  ///@{
  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  ///@}

  /// Error 1004 while there is no title.
  virtual Ref<excel::AxisTitle> AxisTitle() = 0;

  /// As set, or as the host computes it from the data where it isn't. Error 1004 on an axis of categories.
  ///@{
  virtual double MinimumScale() = 0;
  virtual double MaximumScale() = 0;
  ///@}

  /// From then on the data no longer decides. Error 1004 on an axis of categories.
  ///@{
  virtual void SetMinimumScale(double value) = 0;
  virtual void SetMaximumScale(double value) = 0;
  ///@}

  /// From one tick mark with a label to the next, in units of the axis; the host then no longer chooses it.
  /// Error 1004 for 0 and below, and on an axis of categories.
  virtual void SetMajorUnit(double value) = 0;
  /// Whether the host chooses the major unit; False keeps the one that it has chosen. Error 1004 on an axis
  /// of categories.
  virtual void SetMajorUnitIsAuto(bool value) = 0;
  /// XlScaleType: linear, or logarithmic to base 10. Error 1004 for others, and on an axis of categories.
  virtual void SetScaleType(std::int32_t type) = 0;
  /// What the labels count in (XlDisplayUnit), said beside the axis; xlNone for plain values. Error 1004 for
  /// a unit of the user's own, and on an axis of categories.
  virtual void SetDisplayUnit(std::int32_t unit) = 0;
  /// Where the other axis crosses this one (XlAxisCrosses): automatic, or at either end. Error 1004 for a
  /// value of the user's own.
  virtual void SetCrosses(std::int32_t crosses) = 0;
  /// Whether the axis runs backwards, from the last category or the greatest value.
  virtual void SetReversePlotOrder(bool value) = 0;

  /// How the labels are written.
  virtual Ref<excel::TickLabels> TickLabels() = 0;
  /// Where the labels stand (XlTickLabelPosition); error 1004 for others.
  virtual void SetTickLabelPosition(std::int32_t position) = 0;

  /// Whether lines cross the plot area at each major unit, or at each minor one.
  ///@{
  virtual void SetHasMajorGridlines(bool value) = 0;
  virtual void SetHasMinorGridlines(bool value) = 0;
  ///@}

  /// The line of the axis itself.
  virtual Ref<excel::Border> Border() = 0;
};

}  // namespace plotsmith::excel
