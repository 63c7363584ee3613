#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The title of a chart.
class ChartTitle {
 public:
  virtual ~ChartTitle() = default;

  /// The text, with line feeds between lines. A title without a text of its own returns the displayed title:
  /// the name of the only series, or "Chart Title".
  virtual std::string Text() = 0;
  /// Sets the text. It takes the format of the old first line.
  virtual void SetText(std::string_view text) = 0;
};

}  // namespace plotsmith::excel
