#pragma once

#include <stdexcept>
#include <string>

namespace plotsmith::forms {

/// Why a line of a script can't be done: a sentence without its full stop.
class ScriptError : public std::runtime_error {
 public:
  explicit ScriptError(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace plotsmith::forms
