#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class Interior;

/// The plot area of a chart: the area that the title, the legend and the axis titles leave free.
class PlotArea {
 public:
  virtual ~PlotArea() = default;

  /// The position and size of the area including tick labels, in points from the top left corner of the
  /// chart. Without a manual layout, these are the values of the host's automatic layout.
  ///@{
  virtual double Left() = 0;
  virtual double Top() = 0;
  virtual double Width() = 0;
  virtual double Height() = 0;
  ///@}

  /// Sets the width in points, and fixes the current position and height. An area that is too wide for the
  /// chart is cut off. Raises error 1004 for values of 0 or less.
  virtual void SetWidth(double points) = 0;

  /// The fill behind the series.
  virtual Ref<excel::Interior> Interior() = 0;
  /// The border of the area.
  virtual Ref<excel::Border> Border() = 0;
};

}  // namespace plotsmith::excel
