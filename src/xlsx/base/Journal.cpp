#include "xlsx/base/Journal.h"

#include "runtime/Strings.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

/// Replaces unpaired surrogates, which aren't valid in UTF-8. A text that was cut can end in the middle of a
/// surrogate pair.
std::string WithoutHalves(const std::string& text) {
  if (text.find('\xED') == std::string::npos) return text;
  std::string whole;
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = runtime::NextCharacter(text, i);
    runtime::AppendUtf8(whole, c >= 0xD800 && c <= 0xDFFF ? 0xFFFD : c);
  }
  return whole;
}

}  // namespace

std::string Journal::Literal(const Variant& value) {
  if (const auto* text = value.If<std::string>()) {
    std::string quoted = runtime::InQuotes(WithoutHalves(*text), '"');
    // Line breaks become constants, so that a call stays on one line.
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
