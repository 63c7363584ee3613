#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Worksheet;

/// The worksheets of a workbook in tab order.
class Worksheets {
 public:
  virtual ~Worksheets() = default;

  /// The number of worksheets, including hidden ones.
  virtual std::int32_t Count() = 0;

  /// Returns a worksheet by its index, or by its name, ignoring case. Raises error 9 if there is no such
  /// sheet or if it has no cells.
  ///@{
  virtual Ref<Worksheet> Item(std::int32_t index) = 0;
  virtual Ref<Worksheet> Item(std::string_view name) = 0;
  ///@}
};

}  // namespace plotsmith::excel
