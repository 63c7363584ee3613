#include "runtime/Strings.h"

#include <algorithm>
#include <utf8proc.h>

#include "runtime/Ascii.h"

namespace plotsmith::runtime {
namespace {

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// Returns true for the second and later bytes of a character.
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return IsAscii(c); });
}

bool HasAsciiLower(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

/// Returns the upper case of a character. The language keeps a letter if the lower case of its upper case
/// would be another letter, such as the dotless i, the final sigma and the micro sign. It also keeps the
/// sharp s.
char32_t UpperCase(char32_t c) {
  const utf8proc_int32_t upper = utf8proc_toupper(static_cast<utf8proc_int32_t>(c));
  constexpr char32_t kSharpS = 0xDF;
  const bool returns = static_cast<char32_t>(utf8proc_tolower(upper)) == c;
  return returns && c != kSharpS ? static_cast<char32_t>(upper) : c;
}

/// Returns true for ideographs, syllables, emoji and other characters that are as wide as they are high.
bool IsWide(char32_t c) { return utf8proc_charwidth(static_cast<utf8proc_int32_t>(c)) == 2; }

/// Returns true if a line may break between two neighbouring characters of a text without blanks. This is the
/// part of the Unicode line breaking algorithm (UAX #14) that East Asian texts need.
bool MayBreakBetween(char32_t before, char32_t after) {
  constexpr char32_t kFirstWide = 0x1100;
  if (std::max(before, after) < kFirstWide || (!IsWide(before) && !IsWide(after))) return false;
  const auto categoryOf = [](char32_t c) { return utf8proc_category(static_cast<utf8proc_int32_t>(c)); };
  switch (categoryOf(before)) {
    case UTF8PROC_CATEGORY_PS:
    case UTF8PROC_CATEGORY_PI:
    case UTF8PROC_CATEGORY_CF:  // joiners
      return false;
    default:
      break;
  }
  switch (categoryOf(after)) {
    case UTF8PROC_CATEGORY_PE:
    case UTF8PROC_CATEGORY_PF:
    case UTF8PROC_CATEGORY_PO:
    case UTF8PROC_CATEGORY_LM:  // marks of repetition and of long sounds
    case UTF8PROC_CATEGORY_SK:  // colours of skin
    case UTF8PROC_CATEGORY_MN:
    case UTF8PROC_CATEGORY_ME:
    case UTF8PROC_CATEGORY_CF:
      return false;
    default:
      return true;
  }
}

}  // namespace

char32_t NextCharacter(std::string_view text, std::size_t& position) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(position);
  const auto continuation = [&](std::size_t i) { return i < text.size() && IsContinuation(text[i]); };
  if (first < 0x80) {
    position += 1;
    return first;
  }
  if (first >= 0xC2 && first < 0xE0 && continuation(position + 1)) {
    const char32_t c = (first & 0x1Fu) << 6 | (byte(position + 1) & 0x3Fu);
    position += 2;
    return c;
  }
  if (first >= 0xE0 && first < 0xF0 && continuation(position + 1) && continuation(position + 2)) {
    const char32_t c =
        (first & 0x0Fu) << 12 | (byte(position + 1) & 0x3Fu) << 6 | (byte(position + 2) & 0x3Fu);
    if (c >= 0x800) {
      position += 3;
      return c;
    }
  }
  if (first >= 0xF0 && first < 0xF5 && continuation(position + 1) && continuation(position + 2) &&
      continuation(position + 3)) {
    const char32_t c = (first & 0x07u) << 18 | (byte(position + 1) & 0x3Fu) << 12 |
                       (byte(position + 2) & 0x3Fu) << 6 | (byte(position + 3) & 0x3Fu);
    if (c >= 0x10000 && c < 0x110000) {
      position += 4;
      return c;
    }
  }
  position += 1;
  return 0xFFFD;
}

std::size_t CharacterStart(std::string_view text, std::size_t position) {
  while (position > 0 && position < text.size() && IsContinuation(text[position])) --position;
  return position;
}

std::size_t CharacterEnd(std::string_view text, std::size_t position) {
  do ++position;
  while (position < text.size() && IsContinuation(text[position]));
  return position;
}

std::size_t WordEnd(std::string_view text, std::size_t begin) {
  std::size_t at = begin;
  for (char32_t before = 0; at < text.size() && text[at] != ' ';) {
    std::size_t next = at;
    const char32_t character = NextCharacter(text, next);
    if (at > begin && MayBreakBetween(before, character)) break;
    before = character;
    at = next;
  }
  return at;
}

void AppendUtf8(std::string& text, char32_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

std::string_view UCase(std::string_view text, std::string& scratch) {
  if (IsAscii(text)) {
    if (!HasAsciiLower(text)) return text;
    scratch.assign(text);
    for (char& c : scratch) c = ascii::Upper(c);
    return scratch;
  }
  scratch.clear();
  for (std::size_t i = 0; i < text.size();) AppendUtf8(scratch, UpperCase(NextCharacter(text, i)));
  return scratch;
}

std::string UCase(std::string_view text) {
  std::string scratch;
  return std::string(UCase(text, scratch));
}

bool EqualsIgnoreCase(std::string_view a, std::string_view b) {
  if (a == b) return true;
  const auto same = [](char x, char y) { return ascii::Lower(x) == ascii::Lower(y); };
  const auto [stopA, stopB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), same);
  if (stopA == a.end() || stopB == b.end()) return stopA == a.end() && stopB == b.end();
  if (IsAscii(*stopA) && IsAscii(*stopB)) return false;
  std::string scratchA, scratchB;
  return UCase(a, scratchA) == UCase(b, scratchB);
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t Len(std::string_view text) {
  if (IsAscii(text)) return text.size();
  std::size_t units = 0;
  for (std::size_t i = 0; i < text.size();) units += NextCharacter(text, i) >= 0x10000 ? 2 : 1;
  return units;
}

std::string_view Left(std::string_view text, std::size_t count) {
  if (text.size() <= count) return text;  // No character has more UTF-16 units than bytes.
  std::size_t end = 0;
  for (std::size_t i = 0, units = 0; i < text.size(); end = i) {
    units += NextCharacter(text, i) >= 0x10000 ? 2 : 1;
    if (units > count) break;
  }
  return text.substr(0, end);
}

std::u16string ToUtf16(std::string_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = NextCharacter(text, i);
    if (c < 0x10000) {
      units += static_cast<char16_t>(c);
    } else {
      units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    }
  }
  return units;
}

std::string ToUtf8(std::u16string_view units) {
  std::string text;
  text.reserve(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    char32_t c = units[i];
    const bool high = c >= 0xD800 && c < 0xDC00;
    if (high && i + 1 < units.size() && units[i + 1] >= 0xDC00 && units[i + 1] < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (units[++i] - 0xDC00u);
    }
    AppendUtf8(text, c);
  }
  return text;
}

bool IsLetter(char32_t character) {
  const auto category = utf8proc_category(static_cast<utf8proc_int32_t>(character));
  return category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO;
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  if (from.empty()) return std::string(text);
  for (;;) {
    const auto at = text.find(from);
    if (at == std::string_view::npos) return result.append(text);
    result.append(text.substr(0, at)).append(to);
    text.remove_prefix(at + from.size());
  }
}

std::string InQuotes(std::string_view text, char mark) {
  return mark + Replace(text, std::string(1, mark), std::string(2, mark)) + mark;
}

std::string TakeQuoted(std::string_view& text) {
  const char mark = text.front();
  std::string inside;
  std::size_t i = 1;
  for (; i < text.size(); ++i) {
    if (text[i] == mark && !text.substr(i + 1).starts_with(mark)) break;
    inside += text[i];
    if (text[i] == mark) ++i;  // A doubled mark counts as one.
  }
  text.remove_prefix(std::min(i + 1, text.size()));
  return inside;
}

}  // namespace plotsmith::runtime
