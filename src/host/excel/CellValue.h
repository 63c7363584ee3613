#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// What one cell holds, without owning it: `text` is good until the sheet is next written.
struct CellValue {
  /// A date is a number in a date format.
  enum class Kind : std::uint8_t { kEmpty, kNumber, kDate, kBoolean, kError, kText };

  Kind kind = Kind::kEmpty;  ///< says which of the next two count
  double number = 0;  ///< the number; the serial of a date; 1 or 0 of a boolean; Excel's number of an error
  std::string_view text;  ///< of a text, and of an error as the cell shows it

  /// The same as a value that owns its text.
  Variant ToVariant() const {
    switch (kind) {
      case Kind::kNumber:
        return number;
      case Kind::kDate:
        return Variant::Date{number};
      case Kind::kBoolean:
        return number != 0;
      case Kind::kError:
        return Variant::Error{static_cast<int>(number)};
      case Kind::kText:
        return text;
      case Kind::kEmpty:
        break;
    }
    return {};
  }
};

}  // namespace plotsmith::excel
