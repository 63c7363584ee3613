#include "dom/XmlCharacters.h"

#include <algorithm>

#include "runtime/Strings.h"

namespace plotsmith::dom {

std::string XmlCharactersOf(std::string_view text) {
  const auto plain = [](char c) { return static_cast<unsigned char>(c) < 0x80 && IsXmlCharacter(c); };
  if (std::all_of(text.begin(), text.end(), plain)) return std::string(text);
  std::string kept;
  kept.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = runtime::NextCharacter(text, i);
    if (IsXmlCharacter(c)) runtime::AppendUtf8(kept, c);
  }
  return kept;
}

}  // namespace plotsmith::dom
