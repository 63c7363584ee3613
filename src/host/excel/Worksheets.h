#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Worksheet;

/// The sheets that have cells.
class Worksheets {
 public:
  virtual ~Worksheets() = default;

  virtual std::int32_t Count() = 0;
  /// Error 9 if there is no such sheet.
  virtual Ref<Worksheet> Item(std::int32_t index) = 0;
  virtual Ref<Worksheet> Item(std::string_view name) = 0;
};

}  // namespace plotsmith::excel
