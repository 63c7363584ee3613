#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A property of a document, such as its title.
class DocumentProperty {
 public:
  virtual ~DocumentProperty() = default;

  /// Error 1004 if the workbook has no value for it.
  virtual Variant Value() = 0;
};

}  // namespace plotsmith::excel
