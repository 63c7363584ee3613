#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The labels along an axis.
class TickLabels {
 public:
  virtual ~TickLabels() = default;

  /// The format that the labels are shown in, linked or not; "General" where nothing is said.
  virtual std::string NumberFormat() = 0;

  /// Whether the labels take the number format of the cells. False keeps the one that they have then.
  ///@{
  virtual bool NumberFormatLinked() = 0;
  virtual void SetNumberFormatLinked(bool value) = 0;
  ///@}
};

}  // namespace plotsmith::excel
