#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The label of one point.
class DataLabel {
 public:
  virtual ~DataLabel() = default;

  /// A text of its own, in place of what the labels of the series show. Lines are parted by line feeds. A
  /// label that wasn't shown is shown then.
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace plotsmith::excel
