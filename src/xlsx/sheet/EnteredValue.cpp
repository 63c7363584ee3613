#include "xlsx/sheet/EnteredValue.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "runtime/Ascii.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"
#include "xlsx/sheet/ErrorValues.h"

namespace plotsmith::xlsx {
namespace {

using Kind = excel::CellValue::Kind;

void Put(GridCell& cell, Kind kind, double number, std::string text = {}) {
  cell.kind = kind;
  cell.number = number;
  cell.text = std::move(text);
}

/// Returns true if every comma follows a digit and precedes three digits, and no comma follows the decimal
/// point.
bool GroupsThousands(std::string_view text) {
  for (std::size_t i = 0; i < text.size() && text[i] != '.'; ++i) {
    if (text[i] != ',') continue;
    const auto digits = text.substr(i + 1).find_first_not_of("0123456789");
    if (i == 0 || !ascii::IsDigit(text[i - 1])) return false;
    if (std::min(digits, text.size() - i - 1) != 3) return false;
  }
  return text.find(',', std::min(text.find('.'), text.size())) == std::string_view::npos;
}

/// Reads a number as a user types it. A sheet accepts percentages, but no other base, no D exponent and no
/// trailing sign, and commas only between thousands.
std::optional<double> TypedNumber(std::string_view text) {
  text = runtime::Trim(text);
  const bool percent = text.ends_with('%');
  if (percent) text.remove_suffix(1);
  if (text.find_first_of("&dD") != std::string_view::npos || text.ends_with('+') || text.ends_with('-') ||
      !GroupsThousands(text)) {
    return std::nullopt;
  }
  const auto number = runtime::ParseNumber(text);
  if (!number) return std::nullopt;
  return percent ? *number / 100 : *number;
}

void EnterText(GridCell& cell, std::string_view text) {
  if (text.starts_with('\'')) {
    text.remove_prefix(1);
  } else if (text.empty()) {
    return Put(cell, Kind::kEmpty, 0);
  } else if (const auto number = TypedNumber(text)) {
    return Put(cell, Kind::kNumber, *number);
  } else if (runtime::EqualsIgnoreCase(text, "TRUE") || runtime::EqualsIgnoreCase(text, "FALSE")) {
    return Put(cell, Kind::kBoolean, text.size() == 4 ? 1 : 0);
  } else if (text.starts_with('#')) {
    for (const auto& [shown, code] : kErrorValues) {
      if (shown == text) return Put(cell, Kind::kError, code, std::string(shown));
    }
  }
  if (text.size() > limits::kCellText && runtime::Len(text) > limits::kCellText) {
    throw runtime::RuntimeError(runtime::error::kApplication, "The text is longer than a cell can contain.");
  }
  Put(cell, Kind::kText, 0, std::string(text));
}

}  // namespace

void EnterValue(GridCell& cell, const runtime::Variant& value, DateSystem dates) {
  if (const auto* text = value.If<std::string>()) {
    EnterText(cell, *text);
  } else if (value.IsEmpty() || value.IsNull()) {
    Put(cell, Kind::kEmpty, 0);
  } else if (const auto* truth = value.If<bool>()) {
    Put(cell, Kind::kBoolean, *truth ? 1 : 0);
  } else if (const auto* error = value.If<runtime::Variant::Error>()) {
    Put(cell, Kind::kError, error->number, std::string(ErrorText(error->number)));
  } else {
    double number = runtime::CDbl(value);
    if (value.If<runtime::Variant::Date>()) number -= SerialOffset(dates);
    if (!std::isfinite(number)) throw runtime::RuntimeError(runtime::error::kOverflow);
    Put(cell, Kind::kNumber, number);
  }
}

}  // namespace plotsmith::xlsx
