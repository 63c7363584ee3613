#include "xlsx/sheet/EnteredValue.h"

#include <cmath>
#include <optional>
#include <string>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Limits.h"
#include "xlsx/sheet/ErrorValues.h"

namespace plotsmith::xlsx {
namespace {

using Kind = excel::CellValue::Kind;

void Put(GridCell& cell, Kind kind, double number, std::string text = {}) {
  cell.kind = kind;
  cell.number = number;
  cell.text = std::move(text);
}

/// A number as a person types it. Other than the language, a sheet knows percentages and no radix.
std::optional<double> TypedNumber(std::string_view text) {
  text = runtime::Trim(text);
  if (text.find('&') != std::string_view::npos) return std::nullopt;
  const bool percent = text.ends_with('%');
  if (percent) text.remove_suffix(1);
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
  } else if (text.starts_with('=')) {
    throw runtime::RuntimeError(runtime::error::kApplication, "This host has no formulas to enter.");
  }
  if (text.size() > limits::kCellText && runtime::Len(text) > limits::kCellText) {
    throw runtime::RuntimeError(runtime::error::kApplication, "The text is longer than a cell can hold.");
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
