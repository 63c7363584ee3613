#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::forms {

/// A word of a script's line, or a text that was in double quotes.
struct Word {
  std::string text;
  bool quoted = false;
};
using Words = std::vector<Word>;

/// The words of a line, the verb first; none for a blank line and for a comment. A ScriptError where a text
/// isn't well-formed, the verb is unknown, or it has too few or too many words.
Words ParseLine(std::string_view line);

/// A text as a word of a line: in double quotes if it could be taken for something else without them.
std::string WordFor(std::string_view text);

}  // namespace plotsmith::forms
