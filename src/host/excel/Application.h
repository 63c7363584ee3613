#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;
class Window;
class Workbook;

/// The spreadsheet program, or the embedded host in its place.
class Application {
 public:
  virtual ~Application() = default;

  /// The active workbook, or Nothing if no workbook is open.
  virtual Ref<Workbook> ActiveWorkbook() = 0;
  /// The selected chart, or the chart of the active chart sheet. Nothing if there is neither.
  virtual Ref<Chart> ActiveChart() = 0;
  /// The active window, or Nothing if no workbook is open.
  virtual Ref<Window> ActiveWindow() = 0;

  /// The host's version, such as "16.0". Versions up to 11 and later versions differ in their features.
  virtual std::string Version() = 0;
  /// The name of the font for new workbooks. A host without this setting returns the font of the active
  /// workbook's Normal style.
  virtual std::string StandardFont() = 0;
  /// The size of the standard font in points.
  virtual double StandardFontSize() = 0;

  /// Whether the screen shows each change at once. Setting it to true updates the screen.
  ///@{
  virtual bool ScreenUpdating() = 0;
  virtual void SetScreenUpdating(bool value) = 0;
  ///@}

  /// Whether the host accepts keyboard and mouse input from the user.
  virtual bool Interactive() = 0;
  /// Sets whether the host accepts input. Fails while the user edits a cell or an object; there is no other
  /// way to detect this.
  virtual void SetInteractive(bool value) = 0;

  /// The calculation mode of all workbooks (XlCalculation).
  ///@{
  virtual std::int32_t Calculation() = 0;
  virtual void SetCalculation(std::int32_t value) = 0;
  ///@}

  /// Sets whether the host asks for confirmation before it deletes a sheet.
  virtual void SetDisplayAlerts(bool value) = 0;

  /// Calls a macro of the host by name, with positional arguments. Raises error 1004 if there is no such
  /// macro.
  virtual void Run(std::string_view macro, const std::vector<Variant>& arguments) = 0;
};

}  // namespace plotsmith::excel
