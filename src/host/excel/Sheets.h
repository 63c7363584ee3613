#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Sheet;
class Worksheet;

/// The sheets of a workbook in tab order, including chart sheets.
class Sheets {
 public:
  virtual ~Sheets() = default;

  /// The number of sheets, including hidden ones.
  virtual std::int32_t Count() = 0;

  /// Returns a sheet by its index, or by its name, ignoring case. Raises error 9 if there is no such sheet.
  ///@{
  virtual Ref<Sheet> Item(std::int32_t index) = 0;
  virtual Ref<Sheet> Item(std::string_view name) = 0;
  ///@}

  /// Adds a worksheet and makes it the active sheet. At most one argument is given; with neither, the new
  /// sheet is placed before the active sheet. Raises error 1004 if Workbook::ProtectStructure is true.
  virtual Ref<Worksheet> Add(Ref<Sheet> before, Ref<Sheet> after) = 0;
};

}  // namespace plotsmith::excel
