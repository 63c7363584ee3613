#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class AxisTitle;
class Border;
class TickLabels;

/// An axis of the primary group of a chart: a category axis or a value axis. Scatter and bubble charts have
/// two value axes, and xlCategory selects their X axis.
class Axis {
 public:
  virtual ~Axis() = default;

  /// Whether the axis has a title. Setting it to false deletes the text and the format of the title.
  ///@{
  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  ///@}

  /// The title. Raises error 1004 if the axis has none.
  virtual Ref<excel::AxisTitle> AxisTitle() = 0;

  /// The limits of the axis: the values that were set, or those that the host computes from the data. Raises
  /// error 1004 on a category axis.
  ///@{
  virtual double MinimumScale() = 0;
  virtual double MaximumScale() = 0;
  ///@}

  /// Fixes a limit of the axis, so that it no longer depends on the data. Raises error 1004 on a category
  /// axis.
  ///@{
  virtual void SetMinimumScale(double value) = 0;
  virtual void SetMaximumScale(double value) = 0;
  ///@}

  /// Sets the distance between labelled tick marks, in units of the axis. The host then no longer chooses it.
  /// Raises error 1004 for values of 0 or less, and on a category axis.
  virtual void SetMajorUnit(double value) = 0;
  /// Sets whether the host chooses the major unit. False keeps the current unit. Raises error 1004 on a
  /// category axis.
  virtual void SetMajorUnitIsAuto(bool value) = 0;
  /// Sets the scale to linear or to logarithmic with base 10 (XlScaleType). Raises error 1004 for others, and
  /// on a category axis.
  virtual void SetScaleType(std::int32_t type) = 0;
  /// Sets the unit of the labels (XlDisplayUnit), which is shown beside the axis. xlNone means plain values.
  /// Raises error 1004 for a custom unit, and on a category axis.
  virtual void SetDisplayUnit(std::int32_t unit) = 0;
  /// Sets the point where the other axis crosses (XlAxisCrosses): automatic, or at either end. Raises error
  /// 1004 for a custom value.
  virtual void SetCrosses(std::int32_t crosses) = 0;
  /// Sets whether the axis runs backwards, beginning with the last category or the largest value.
  virtual void SetReversePlotOrder(bool value) = 0;

  /// The format of the labels.
  virtual Ref<excel::TickLabels> TickLabels() = 0;
  /// Sets the position of the labels (XlTickLabelPosition). Raises error 1004 for others.
  virtual void SetTickLabelPosition(std::int32_t position) = 0;

  /// Sets whether there are gridlines at the major or minor units.
  ///@{
  virtual void SetHasMajorGridlines(bool value) = 0;
  virtual void SetHasMinorGridlines(bool value) = 0;
  ///@}

  /// The line of the axis.
  virtual Ref<excel::Border> Border() = 0;
};

}  // namespace plotsmith::excel
