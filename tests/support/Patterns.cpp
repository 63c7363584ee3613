#include "tests/support/Patterns.h"

#include <regex>

namespace plotsmith::test {

std::size_t CountOf(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
  return count;
}

std::vector<Match> MatchesOf(const std::string& text, const std::string& expression) {
  const std::regex pattern(expression);
  std::vector<Match> matches;
  for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it)
    matches.emplace_back(it->begin(), it->end());
  return matches;
}

std::string ReplaceMatches(const std::string& text, const std::string& expression,
                           const std::string& replacement) {
  return std::regex_replace(text, std::regex(expression), replacement);
}

bool IsMatch(const std::string& text, const std::string& expression) {
  return std::regex_match(text, std::regex(expression));
}

}  // namespace plotsmith::test
