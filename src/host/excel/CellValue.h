#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The contents of a cell. It doesn't own its text, which is valid until the next change to the sheet.
struct CellValue {
  /// The kind of contents. A date is a number in a date format.
  enum class Kind : std::uint8_t { kEmpty, kNumber, kDate, kBoolean, kError, kText };

  Kind kind = Kind::kEmpty;  ///< The kind, which decides whether `number` or `text` is used.

  double number = 0;  ///< The number, the serial of a date, 1 or 0 for a Boolean, or Excel's error number.
  std::string_view text;  ///< The text, or the displayed text of an error value.

  /// Returns the contents as a value that owns its text.
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
