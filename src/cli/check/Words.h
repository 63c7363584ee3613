#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::cli {

/// The text with blanks for line breaks and other control characters.
std::string OneLine(std::string text);
/// The text in single quotes on one line; a long one is cut short.
std::string Quoted(std::string_view text);
/// A word that a person can copy into a shell: in single quotes, where a shell would take it apart.
std::string ShellWord(const std::string& text);
/// "a, b and c", with `word` before the last item; of a long list the beginning. "none" for an empty one.
std::string Listed(const std::vector<std::string>& items, const char* word = "and");
/// "there is a", "there are a and b", "there are none".
std::string ThereAre(const std::vector<std::string>& items);
/// "1 cell", "2 cells".
std::string Counted(std::size_t count, const std::string& noun);
/// Of one and of several: ForCount(count, "makes", "make").
const char* ForCount(std::size_t count, const char* one, const char* several);
/// "Data1!C5"; the sheet's name is in quotes where a formula needs them.
std::string CellText(std::string_view sheet, std::int32_t row, std::int32_t column);

}  // namespace plotsmith::cli
