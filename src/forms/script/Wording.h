#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::forms {

/// Joins names into a list such as "A, B and C".
std::string Listed(const std::vector<std::string>& names);
/// Returns the available names as the end of a sentence: all of them, or the first few and the total number
/// if there are many.
std::string SomeOf(const std::vector<std::string>& names);
/// Returns a text in single quotes, with line ends written as "\n".
std::string Named(std::string_view text);

}  // namespace plotsmith::forms
