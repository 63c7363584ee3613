#include "xlsx/book/BookDamage.h"

#include "xlsx/base/Errors.h"

namespace plotsmith::xlsx {

void BookDamage::Raise(const PackageError& error) {
  if (!damage_) damage_ = error.what();
  throw Refusal("The workbook can't be read: " + std::string(error.what()) + ".");
}

}  // namespace plotsmith::xlsx
