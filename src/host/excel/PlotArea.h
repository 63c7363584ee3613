#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class Interior;

/// Where a chart draws, inside of title, legend and axis titles.
class PlotArea {
 public:
  virtual ~PlotArea() = default;

  virtual Ref<excel::Interior> Interior() = 0;
  virtual Ref<excel::Border> Border() = 0;
  // Points from the chart's corner, of the area with its tick labels.
  virtual double Left() = 0;
  virtual double Top() = 0;
  virtual double Width() = 0;
  virtual void SetWidth(double points) = 0;
  virtual double Height() = 0;
};

}  // namespace plotsmith::excel
