#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Sheet;
class Worksheet;

/// The sheets of a workbook in the order of their tabs, chart sheets among them.
class Sheets {
 public:
  virtual ~Sheets() = default;

  /// With the hidden ones.
  virtual std::int32_t Count() = 0;

  /// By its place among the tabs, or by its name, case aside. Error 9 if there is no such sheet.
  ///@{
  virtual Ref<Sheet> Item(std::int32_t index) = 0;
  virtual Ref<Sheet> Item(std::string_view name) = 0;
  ///@}

  /// A new worksheet, which becomes the active sheet. At most one of the two is given; with neither it stands
  /// before the active sheet. Error 1004 while Workbook::ProtectStructure is True.
  virtual Ref<Worksheet> Add(Ref<Sheet> before, Ref<Sheet> after) = 0;
};

}  // namespace plotsmith::excel
