#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Range;

/// A defined name: Excel's Name, which C++ can't give to a class with a member Name.
class DefinedName {
 public:
  virtual ~DefinedName() = default;

  /// With the sheet, in quotes where a formula needs them, and "!" in front if it belongs to one sheet.
  virtual std::string Name() = 0;
  /// The definition, with "=" in front.
  virtual std::string RefersTo() = 0;
  /// Of several areas the first. Error 1004 if the name doesn't refer to a range, and in a host without
  /// formulas also if it computes its range.
  virtual Ref<Range> RefersToRange() = 0;
};

}  // namespace plotsmith::excel
