#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A sheet of any kind.
class Sheet {
 public:
  virtual ~Sheet() = default;

  virtual std::string Name() = 0;
  /// Error 1004 for a name that is taken, or that a sheet can't have.
  virtual void SetName(std::string_view name) = 0;
  /// XlSheetVisibility.
  virtual std::int32_t Visible() = 0;
  virtual void SetVisible(std::int32_t value) = 0;
  virtual void Activate() = 0;
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel
