#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A window of a workbook. Its settings apply to the sheet that is active when they are set, and are stored
/// with that sheet.
class Window {
 public:
  virtual ~Window() = default;

  /// Sets whether the sheet shows gridlines. Raises error 1004 for a sheet without cells.
  virtual void SetDisplayGridlines(bool value) = 0;
  /// Sets whether the sheet shows row and column headings. Raises error 1004 for a sheet without cells.
  virtual void SetDisplayHeadings(bool value) = 0;
};

}  // namespace plotsmith::excel
