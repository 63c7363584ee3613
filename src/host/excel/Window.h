#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A window of a workbook. Its settings are those of the sheet that is active in it when they are set, and
/// are kept with that sheet.
class Window {
 public:
  virtual ~Window() = default;

  /// Whether the sheet shows lines between its cells. Error 1004 if the sheet has no cells.
  virtual void SetDisplayGridlines(bool value) = 0;
  /// Whether the sheet shows the letters of its columns and the numbers of its rows. Error 1004 if the sheet
  /// has no cells.
  virtual void SetDisplayHeadings(bool value) = 0;
};

}  // namespace plotsmith::excel
