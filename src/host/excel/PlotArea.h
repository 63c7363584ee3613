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
};

}  // namespace plotsmith::excel
