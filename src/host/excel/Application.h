#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Chart;
class Workbook;

/// The host itself.
class Application {
 public:
  virtual ~Application() = default;

  virtual Ref<Workbook> ActiveWorkbook() = 0;
  /// The chart that is selected or whose chart sheet is active, or Nothing.
  virtual Ref<Chart> ActiveChart() = 0;
  /// The host's version, such as "16.0": up to 11 and above 11 differ in what they can do.
  virtual std::string Version() = 0;

  virtual bool ScreenUpdating() = 0;
  virtual void SetScreenUpdating(bool value) = 0;
  virtual bool Interactive() = 0;
  /// Fails while a cell or an object is being edited.
  virtual void SetInteractive(bool value) = 0;
  /// XlCalculation.
  virtual std::int32_t Calculation() = 0;
  virtual void SetCalculation(std::int32_t value) = 0;
  /// Whether the host asks before it deletes a sheet.
  virtual void SetDisplayAlerts(bool value) = 0;

  /// Calls a macro of the host by name; error 1004 if there is none.
  virtual void Run(std::string_view macro, const std::vector<Variant>& arguments) = 0;
  /// The font that new workbooks have.
  virtual std::string StandardFont() = 0;
  /// Points.
  virtual double StandardFontSize() = 0;
};

}  // namespace plotsmith::excel
