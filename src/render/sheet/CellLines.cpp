#include "render/sheet/CellLines.h"

#include <algorithm>
#include <cstddef>

#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

/// Returns how many bytes of a word fit. They are whole characters, and at least one.
std::size_t FittingPart(std::string_view word, double width, const WidthOf& widthOf) {
  std::size_t end = runtime::CharacterEnd(word, 0);
  while (end < word.size()) {
    const std::size_t next = runtime::CharacterEnd(word, end);
    if (widthOf(word.substr(0, next)) > width) break;
    end = next;
  }
  return end;
}

/// Appends the lines of a paragraph.
void WrapParagraph(std::string_view text, double width, const WidthOf& widthOf,
                   std::vector<std::string>& lines) {
  if (text.empty()) lines.emplace_back();
  std::string line;
  while (!text.empty()) {
    // The piece is a word with the spaces before it.
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t end = runtime::WordEnd(text, begin);
    const std::string longer = line + std::string(text.substr(0, end));
    if (widthOf(longer) <= width) {
      line = longer;
      text.remove_prefix(end);
    } else if (!line.empty()) {
      lines.push_back(std::move(line));
      line.clear();
      text.remove_prefix(begin);
    } else {
      const std::size_t part = FittingPart(text, width, widthOf);
      lines.emplace_back(text.substr(0, part));
      text.remove_prefix(part);
    }
  }
  if (!line.empty()) lines.push_back(std::move(line));
}

}  // namespace

std::vector<std::string> WrappedLines(std::string_view text, double width, const WidthOf& widthOf) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    std::string_view paragraph = text.substr(begin, end - begin);
    if (paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    WrapParagraph(paragraph, width, widthOf, lines);
    begin = end + 1;
  }
  return lines;
}

}  // namespace plotsmith::render
