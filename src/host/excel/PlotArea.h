#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class Interior;

class PlotArea {
 public:
  virtual ~PlotArea() = default;

  virtual Ref<excel::Interior> Interior() = 0;
  virtual Ref<excel::Border> Border() = 0;
  // Points from the chart's corner, of the area with its tick labels.
  virtual double Left() { Pending(); }
  virtual double Top() { Pending(); }
  virtual double Width() { Pending(); }
  virtual void SetWidth(double points) { Pending(); }
  virtual double Height() { Pending(); }
};

}  // namespace plotsmith::excel
