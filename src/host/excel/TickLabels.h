#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The labels along an axis.
class TickLabels {
 public:
  virtual ~TickLabels() = default;

  /// Whether the labels take the number format of the cells.
  virtual void SetNumberFormatLinked(bool value) = 0;
  virtual bool NumberFormatLinked() = 0;
  virtual std::string NumberFormat() = 0;
};

}  // namespace plotsmith::excel
