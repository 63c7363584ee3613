#pragma once

#include <string>
#include <vector>

namespace plotsmith::test {

/// Returns how many times a text contains another one. Overlapping places count as well.
std::size_t CountOf(const std::string& text, const std::string& what);

/// A match of a regular expression: the whole of it, and then its groups.
using Match = std::vector<std::string>;

/// Returns the matches of a regular expression in a text. This and the functions below take expressions in
/// the syntax of ECMAScript. They are the only users of <regex>, which takes long to compile.
std::vector<Match> MatchesOf(const std::string& text, const std::string& expression);
/// Returns the text with each match replaced. `$1` in the replacement is the first group.
std::string ReplaceMatches(const std::string& text, const std::string& expression,
                           const std::string& replacement);
/// Returns true if the whole text matches.
bool IsMatch(const std::string& text, const std::string& expression);

}  // namespace plotsmith::test
