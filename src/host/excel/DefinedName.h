#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Range;

/// A defined name. Excel calls the class Name, but a C++ class can't have a member with its own name.
class DefinedName {
 public:
  virtual ~DefinedName() = default;

  /// The name. A name that belongs to one sheet begins with the sheet (in quotes if a formula needs them) and
  /// "!".
  virtual std::string Name() = 0;
  /// The definition, beginning with "=".
  virtual std::string RefersTo() = 0;
  /// The range that the name refers to; the first area if there are several. Raises error 1004 if the name
  /// doesn't refer to a range. A host without formulas also raises it for names that compute their range.
  virtual Ref<Range> RefersToRange() = 0;
};

}  // namespace plotsmith::excel
