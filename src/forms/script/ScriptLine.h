#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::forms {

/// A word in a line of a script, or a text in double quotes.
struct Word {
  std::string text;     ///< The text without quotes.
  bool quoted = false;  ///< Whether it was in double quotes.
};
/// The words of a line.
using Words = std::vector<Word>;

/// Returns the words of a line, beginning with the verb. Blank lines and comments have no words. Throws
/// ScriptError if a quoted text isn't well-formed, if the verb is unknown, or if the number of words is
/// wrong.
Words ParseLine(std::string_view line);

/// Returns a text as a word of a line, with double quotes if they are necessary.
std::string WordFor(std::string_view text);

}  // namespace plotsmith::forms
