#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DefinedName;

/// The defined names of a workbook, sorted by name, hidden ones among them.
class Names {
 public:
  virtual ~Names() = default;

  /// Of the names of the workbook and of those of single sheets.
  virtual std::int32_t Count() = 0;
  /// Error 1004 outside.
  virtual Ref<DefinedName> Item(std::int32_t index) = 0;
  /// By DefinedName::Name, case aside. Error 1004 if there is no such name.
  virtual Ref<DefinedName> Item(std::string_view name) = 0;
};

}  // namespace plotsmith::excel
