#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The tick labels of an axis.
class TickLabels {
 public:
  virtual ~TickLabels() = default;

  /// The number format of the labels, linked or not. The default is "General".
  virtual std::string NumberFormat() = 0;

  /// Whether the labels use the number format of the cells. Setting it to false keeps the current format.
  ///@{
  virtual bool NumberFormatLinked() = 0;
  virtual void SetNumberFormatLinked(bool value) = 0;
  ///@}
};

}  // namespace plotsmith::excel
