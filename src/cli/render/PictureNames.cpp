#include "cli/render/PictureNames.h"

#include <cstddef>

#include "runtime/Strings.h"
#include "runtime/Utf8Path.h"

namespace plotsmith::cli {
namespace {

/// File systems allow 255 bytes, which must also include the workbook's name, a number and the extension.
constexpr std::size_t kLongest = 100;

/// Returns true for characters that every file system allows, except blanks, which separate words in shells.
/// Bytes of UTF-8 are allowed.
bool IsSafe(char c) {
  return static_cast<unsigned char>(c) >= 0x80 || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
         (c >= 'a' && c <= 'z') || c == '_' || c == '.';
}

/// Replaces each run of unsafe characters by a dash, and removes dashes at the ends.
std::string Safe(std::string_view text) {
  std::string name;
  for (const char c : text) {
    if (IsSafe(c)) {
      name += c;
    } else if (!name.empty() && name.back() != '-') {
      name += '-';
    }
  }
  if (name.size() > kLongest) name.resize(runtime::CharacterStart(name, kLongest));
  while (!name.empty() && (name.back() == '-' || name.back() == '.')) name.pop_back();
  // A name that begins with a dot is hidden, and a name that begins with a dash looks like an option.
  name.erase(0, name.find_first_not_of(".-"));
  return name;
}

}  // namespace

PictureNames::PictureNames(const std::string& book)
    : stem_(Safe(runtime::Utf8Of(runtime::PathOf(book).stem()))) {}

std::string PictureNames::NameFor(std::string_view what) {
  const std::string safe = Safe(what);
  const std::string name = stem_ + (stem_.empty() || safe.empty() ? "" : "-") + safe;
  std::string unique = name.empty() ? "chart" : name;
  for (int number = 2; !taken_.insert(runtime::UCase(unique)).second; ++number)
    unique = name + "-" + std::to_string(number);
  return unique;
}

}  // namespace plotsmith::cli
