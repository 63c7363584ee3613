#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Worksheet;

/// The sheets that have cells, in the order of their tabs.
class Worksheets {
 public:
  virtual ~Worksheets() = default;

  /// With the hidden ones.
  virtual std::int32_t Count() = 0;

  /// By its place among them, or by its name, case aside. Error 9 if there is no such sheet, or it has no
  /// cells.
  ///@{
  virtual Ref<Worksheet> Item(std::int32_t index) = 0;
  virtual Ref<Worksheet> Item(std::string_view name) = 0;
  ///@}
};

}  // namespace plotsmith::excel
