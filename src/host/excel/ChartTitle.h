#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The title of a chart.
class ChartTitle {
 public:
  virtual ~ChartTitle() = default;

  /// Lines are parted by line feeds. A title without a text of its own reads as it is shown: the name of the
  /// only series, or "Chart Title".
  virtual std::string Text() = 0;
  /// The new text looks as the first line did.
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace plotsmith::excel
