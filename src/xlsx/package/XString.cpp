#include "xlsx/package/XString.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "dom/XmlCharacters.h"
#include "runtime/Strings.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::size_t kEscapeLength = 7;  // _xHHHH_

std::optional<char16_t> EscapeAt(std::string_view text, std::size_t at) {
  if (at + kEscapeLength > text.size() || text[at] != '_' || text[at + 1] != 'x' || text[at + 6] != '_') {
    return std::nullopt;
  }
  std::uint16_t unit = 0;
  const char* digits = text.data() + at + 2;
  const auto [end, status] = std::from_chars(digits, digits + 4, unit, 16);
  if (status != std::errc() || end != digits + 4) return std::nullopt;
  return static_cast<char16_t>(unit);
}

}  // namespace

std::string DecodeXString(std::string_view text) {
  if (text.find("_x") == std::string_view::npos) return std::string(text);
  std::u16string units;  // Two escapes may be the halves of a surrogate pair.
  std::size_t plain = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (const auto unit = EscapeAt(text, i)) {
      units += runtime::ToUtf16(text.substr(plain, i - plain));
      units += *unit;
      i = plain = i + kEscapeLength;
    } else {
      ++i;
    }
  }
  return runtime::ToUtf8(units + runtime::ToUtf16(text.substr(plain)));
}

std::string EncodeXString(std::string_view text) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size();) {
    const bool readsAsEscape = EscapeAt(text, i).has_value();
    const char32_t c = runtime::NextCharacter(text, i);
    if (readsAsEscape || c == '\r' || !dom::IsXmlCharacter(c)) {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "_x%04X_", static_cast<unsigned>(c));
      escaped += escape.data();
    } else {
      runtime::AppendUtf8(escaped, c);
    }
  }
  return xml::EncodeText(escaped);
}

}  // namespace plotsmith::xlsx
