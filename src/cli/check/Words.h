#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::cli {

/// Returns the text with blanks in place of line breaks and other control characters.
std::string OneLine(std::string text);
/// Returns the text in single quotes on one line. Long texts are shortened.
std::string Quoted(std::string_view text);
/// Returns the text as a word for a shell, with single quotes if they are necessary.
std::string ShellWord(const std::string& text);
/// Joins items to "a, b and c", with `word` before the last one. Long lists are shortened. An empty list
/// gives "none".
std::string Listed(const std::vector<std::string>& items, const char* word = "and");
/// Returns "there is a", "there are a and b" or "there are none".
std::string ThereAre(const std::vector<std::string>& items);
/// Returns a chart type with its noun and article, such as "an area chart".
std::string ChartOf(const std::string& type);
/// Returns a sentence with a capital letter at its beginning.
std::string Capitalized(std::string sentence);
/// Returns "1 cell", "2 cells" and so on.
std::string Counted(std::size_t count, const std::string& noun);
/// Returns the form of a word for one or several: ForCount(count, "makes", "make").
const char* ForCount(std::size_t count, const char* one, const char* several);
/// Returns the address of a cell, such as "Data1!C5". The sheet's name is in quotes if a formula needs them.
std::string CellText(std::string_view sheet, std::int32_t row, std::int32_t column);

}  // namespace plotsmith::cli
