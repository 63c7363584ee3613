#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DefinedName;

/// The defined names of a workbook, sorted by name, including hidden names.
class Names {
 public:
  virtual ~Names() = default;

  /// The number of names, both of the workbook and of single sheets.
  virtual std::int32_t Count() = 0;
  /// Returns a name by index. Raises error 1004 if the index is out of range.
  virtual Ref<DefinedName> Item(std::int32_t index) = 0;
  /// Returns the name whose DefinedName::Name is `name`, ignoring case. Raises error 1004 if there is no such
  /// name.
  virtual Ref<DefinedName> Item(std::string_view name) = 0;
};

}  // namespace plotsmith::excel
