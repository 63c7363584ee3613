#include "xlsx/Journal.h"

#include "runtime/Strings.h"

namespace plotsmith::xlsx {

using runtime::Variant;

std::string Journal::Literal(const Variant& value) {
  if (const auto* text = value.If<std::string>()) {
    std::string quoted = "\"" + runtime::Replace(*text, "\"", "\"\"") + "\"";
    // a line stays a line
    quoted = runtime::Replace(quoted, "\r\n", "\" & vbCrLf & \"");
    quoted = runtime::Replace(quoted, "\r", "\" & vbCr & \"");
    return runtime::Replace(quoted, "\n", "\" & vbLf & \"");
  }
  if (value.IsEmpty()) return "Empty";
  if (value.IsNull()) return "Null";
  if (const auto* error = value.If<Variant::Error>()) return "CVErr(" + std::to_string(error->number) + ")";
  return runtime::CStr(value);
}

std::string Journal::Literals(std::initializer_list<Variant> values) {
  std::string list;
  for (const Variant& value : values) list += (list.empty() ? "" : ", ") + Literal(value);
  return list;
}

}  // namespace plotsmith::xlsx
