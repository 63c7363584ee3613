#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class AxisTitle;
class TickLabels;

class Axis {
 public:
  virtual ~Axis() = default;

  virtual bool HasTitle() = 0;
  virtual void SetHasTitle(bool value) = 0;
  /// Error 1004 while there is no title.
  virtual Ref<excel::AxisTitle> AxisTitle() = 0;
  virtual Ref<excel::TickLabels> TickLabels() = 0;
};

}  // namespace plotsmith::excel
