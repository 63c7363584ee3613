#include "forms/script/ScriptLine.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "forms/TextBox.h"
#include "forms/script/ScriptError.h"
#include "forms/script/Wording.h"
#include "runtime/Strings.h"

namespace plotsmith::forms {
namespace {

constexpr std::string_view kBlanks = " \t\r";

/// The form of a verb. The counts are those of its arguments.
struct VerbForm {
  const char* name;
  const char* usage;
  std::size_t least, most;
};

constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();

constexpr std::array kVerbs = {
    VerbForm{"page", "page NAME", 1, 1},
    VerbForm{"select", "select CONTROL ITEM...", 1, kAny},
    VerbForm{"choose", "choose CONTROL [ITEM]", 1, 2},
    VerbForm{"check", "check CONTROL", 1, 1},
    VerbForm{"uncheck", "uncheck CONTROL", 1, 1},
    VerbForm{"type", "type CONTROL TEXT", 2, 2},
    VerbForm{"press", "press CONTROL", 1, 1},
    VerbForm{"double", "double CONTROL ITEM", 2, 2},
    VerbForm{"focus", "focus CONTROL", 1, 1},
    VerbForm{"enter", "enter", 0, 0},
    VerbForm{"escape", "escape", 0, 0},
    VerbForm{"close", "close", 0, 0},
    VerbForm{"answer", "answer ok, or answer cancel", 1, 1},
    VerbForm{"expect", "expect message TEXT, expect question TEXT, or expect CONTROL.PROPERTY VALUE", 2, 2},
    VerbForm{"show", "show", 0, 0},
};

/// Returns the character of an escape sequence. `at` is after the backslash, and moves past the sequence.
char Unescaped(std::string_view line, std::size_t& at) {
  const char c = at < line.size() ? line[at++] : '\0';
  if (c == 'n') return '\n';
  if (c == '"' || c == '\\') return c;
  std::size_t end = at - (c == '\0' ? 0 : 1);
  const std::size_t begin = end;
  if (c != '\0') runtime::NextCharacter(line, end);
  throw ScriptError("a text can't have \\" + std::string(line.substr(begin, end - begin)) +
                    "; it can have \\\" for a quotation mark, \\\\ for a backslash and \\n for a new line");
}

/// Reads a text in double quotes that begins at `at`, and moves `at` past it.
Word QuotedWord(std::string_view line, std::size_t& at) {
  Word word{"", true};
  for (++at;;) {
    if (at >= line.size())
      throw ScriptError("the text " + Named(word.text) + " has no closing quotation mark");
    const char c = line[at++];
    if (c == '"') break;
    word.text += c == '\\' ? Unescaped(line, at) : c;
  }
  if (at < line.size() && kBlanks.find(line[at]) == kBlanks.npos) {
    throw ScriptError("a blank must follow the text " + Named(word.text) +
                      "; a quotation mark inside of a text is written \\\"");
  }
  return word;
}

Word PlainWord(std::string_view line, std::size_t& at) {
  const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
  Word word{std::string(line.substr(at, end - at)), false};
  at = end;
  if (word.text.find('"') != std::string::npos) {
    throw ScriptError(
        "a text with a quotation mark in it is put in double quotes, and the mark is written \\\"");
  }
  return word;
}

void CheckForm(const Words& words) {
  const std::string& name = words.front().text;
  const auto* verb =
      std::find_if(kVerbs.begin(), kVerbs.end(), [&](const VerbForm& form) { return form.name == name; });
  if (verb == kVerbs.end() || words.front().quoted) {
    std::vector<std::string> names;
    for (const VerbForm& form : kVerbs) names.emplace_back(form.name);
    throw ScriptError("there is no verb " + Named(name) + "; there are " + Listed(names));
  }
  const std::size_t count = words.size() - 1;
  if (count >= verb->least && count <= verb->most) return;
  const bool many = count > verb->most && verb->most > 0;
  throw ScriptError("the line should be: " + std::string(verb->usage) +
                    (many ? " (a text with blanks is put in double quotes)" : ""));
}

}  // namespace

Words ParseLine(std::string_view line) {
  Words words;
  std::size_t at = line.find_first_not_of(kBlanks);
  if (at == line.npos || line[at] == '#') return words;
  for (; at < line.size(); at = std::min(line.find_first_not_of(kBlanks, at), line.size())) {
    words.push_back(line[at] == '"' ? QuotedWord(line, at) : PlainWord(line, at));
  }
  CheckForm(words);
  return words;
}

std::string WordFor(std::string_view text) {
  const std::string folded = WithLineEnds(text, "\n");
  if (!folded.empty() && folded.front() != '#' && folded.find_first_of(" \t\n\"\\") == folded.npos) {
    return folded;
  }
  std::string word = "\"";
  for (const char c : folded) {
    if (c == '"' || c == '\\') word += '\\';
    word += c == '\n' ? std::string("\\n") : std::string(1, c);
  }
  return word + "\"";
}

}  // namespace plotsmith::forms
