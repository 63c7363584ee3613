#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The data label of a point.
class DataLabel {
 public:
  virtual ~DataLabel() = default;

  /// Sets a text that replaces the automatic one, with line feeds between lines. A hidden label is shown.
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace plotsmith::excel
