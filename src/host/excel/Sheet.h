#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A sheet of any kind. Error 1004 once it has been deleted.
class Sheet {
 public:
  virtual ~Sheet() = default;

  /// As the tab shows it.
  virtual std::string Name() = 0;
  /// At most 31 UTF-16 units. Error 1004 for a name that is taken, or that a sheet can't have. A host may
  /// refuse it as well, with the same error, for sheets that the system didn't make.
  virtual void SetName(std::string_view name) = 0;

  /// XlSheetVisibility. What is very hidden only programs can show again.
  ///@{
  virtual std::int32_t Visible() = 0;
  virtual void SetVisible(std::int32_t value) = 0;
  ///@}

  /// Brings the sheet to the front. A workbook that is saved then opens on it. Error 1004 for a hidden sheet.
  virtual void Activate() = 0;
  /// The sheet goes with all that is on it; whether the user is asked first, Application::SetDisplayAlerts
  /// says. A host may refuse it, with error 1004, for sheets that the system didn't make.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
