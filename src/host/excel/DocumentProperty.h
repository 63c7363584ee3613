#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A document property, such as the title.
class DocumentProperty {
 public:
  virtual ~DocumentProperty() = default;

  /// The value. Raises error 1004 if the workbook has no value for the property.
  virtual Variant Value() = 0;
};

}  // namespace plotsmith::excel
