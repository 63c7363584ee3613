#pragma once

#include <stdexcept>
#include <string>

namespace plotsmith::forms {

/// The reason why a line of a script can't be executed, as a sentence without a full stop.
class ScriptError : public std::runtime_error {
 public:
  /// Makes an error with a sentence without a full stop.
  explicit ScriptError(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace plotsmith::forms
