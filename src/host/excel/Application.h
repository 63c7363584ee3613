#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;
class Window;
class Workbook;

/// The spreadsheet program itself, or what stands in for it.
class Application {
 public:
  virtual ~Application() = default;

  /// Nothing while no workbook is open.
  virtual Ref<Workbook> ActiveWorkbook() = 0;
  /// The chart that is selected or whose chart sheet is active, or Nothing.
  virtual Ref<Chart> ActiveChart() = 0;
  /// The window in front. Nothing while no workbook is open.
  virtual Ref<Window> ActiveWindow() = 0;

  /// The host's version, such as "16.0": up to 11 and above 11 differ in what they can do.
  virtual std::string Version() = 0;
  /// The font that new workbooks get; where that is no setting of the host, the font of the active workbook's
  /// Normal style.
  virtual std::string StandardFont() = 0;
  /// The size of that font, in points.
  virtual double StandardFontSize() = 0;

  /// Whether the screen follows each change; if not, it catches up when this becomes True.
  ///@{
  virtual bool ScreenUpdating() = 0;
  virtual void SetScreenUpdating(bool value) = 0;
  ///@}

  /// Whether keys and clicks of the user reach the host.
  virtual bool Interactive() = 0;
  /// Fails while a cell or an object is being edited. There is no other way to ask for that.
  virtual void SetInteractive(bool value) = 0;

  /// When formulas are calculated (XlCalculation), in all workbooks.
  ///@{
  virtual std::int32_t Calculation() = 0;
  virtual void SetCalculation(std::int32_t value) = 0;
  ///@}

  /// Whether the host asks the user before it deletes a sheet.
  virtual void SetDisplayAlerts(bool value) = 0;

  /// Calls a macro of the host by name, with its arguments by position; error 1004 if there is none.
  virtual void Run(std::string_view macro, const std::vector<Variant>& arguments) = 0;
};

}  // namespace plotsmith::excel
