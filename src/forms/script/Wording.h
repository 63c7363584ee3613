#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::forms {

/// "A, B and C".
std::string Listed(const std::vector<std::string>& names);
/// What there is of something, as the end of a sentence: "A, B and C", or the first few of many with their
/// number.
std::string SomeOf(const std::vector<std::string>& names);
/// A text in single quotes, with its line ends as "\n".
std::string Named(std::string_view text);

}  // namespace plotsmith::forms
