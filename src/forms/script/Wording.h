#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::forms {

/// Joins names to "A, B and C".
std::string Listed(const std::vector<std::string>& names);
/// Lists the available names as the end of a sentence: "A, B and C", or the first few of many with their
/// number.
std::string SomeOf(const std::vector<std::string>& names);
/// Returns a text in single quotes, with line ends written as "\n".
std::string Named(std::string_view text);

}  // namespace plotsmith::forms
