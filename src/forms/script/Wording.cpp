#include "forms/script/Wording.h"

#include "forms/TextBox.h"

namespace plotsmith::forms {
namespace {

constexpr std::size_t kAllUpTo = 12;  // The number of names that are easy to read.
constexpr std::size_t kFirst = 6;

}  // namespace

std::string Listed(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
    text += names[i];
  }
  return text;
}

std::string SomeOf(const std::vector<std::string>& names) {
  if (names.size() <= kAllUpTo) return Listed(names);
  std::string text;
  for (std::size_t i = 0; i < kFirst; ++i) text += names[i] + ", ";
  return text + "... (" + std::to_string(names.size()) + " in all)";
}

std::string Named(std::string_view text) { return "'" + WithLineEnds(text, "\\n") + "'"; }

}  // namespace plotsmith::forms
