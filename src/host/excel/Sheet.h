#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A sheet of any kind. Its members raise error 1004 after the sheet was deleted.
class Sheet {
 public:
  virtual ~Sheet() = default;

  /// The name on the tab.
  virtual std::string Name() = 0;
  /// Sets the name, which has at most 31 UTF-16 units. Raises error 1004 for a name that exists or isn't
  /// allowed. A host may also raise it for sheets that the system didn't make.
  virtual void SetName(std::string_view name) = 0;

  /// The visibility (XlSheetVisibility). Only programs can show a very hidden sheet again.
  ///@{
  virtual std::int32_t Visible() = 0;
  virtual void SetVisible(std::int32_t value) = 0;
  ///@}

  /// Makes this the active sheet, which is also the sheet that is shown when the saved workbook is opened.
  /// Raises error 1004 for a hidden sheet.
  virtual void Activate() = 0;
  /// Deletes the sheet and its contents. Application::SetDisplayAlerts decides whether the user is asked
  /// first. A host may raise error 1004 for sheets that the system didn't make.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
