#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class Interior;

/// Where a chart draws, inside of title, legend and axis titles.
class PlotArea {
 public:
  virtual ~PlotArea() = default;

  /// Points from the chart's corner, of the area with its tick labels. Where nobody set it, as the host lays
  /// the chart out.
  ///@{
  virtual double Left() = 0;
  virtual double Top() = 0;
  virtual double Width() = 0;
  virtual double Height() = 0;
  ///@}

  /// The area then keeps the place and the height that it has now. What is too wide for the chart is cut.
  /// Error 1004 for 0 and below.
  virtual void SetWidth(double points) = 0;

  /// The ground behind the series.
  virtual Ref<excel::Interior> Interior() = 0;
  /// The frame around it.
  virtual Ref<excel::Border> Border() = 0;
};

}  // namespace plotsmith::excel
