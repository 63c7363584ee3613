#pragma once

#include <string>

#include "runtime/RuntimeError.h"

/// What the host answers where Excel refuses, in Excel's words: all of it is error 1004.
namespace plotsmith::xlsx {

inline runtime::RuntimeError Refusal(std::string sentence) {
  return {runtime::error::kApplication, std::move(sentence)};
}

inline runtime::RuntimeError OutOfRange() { return Refusal("The specified value is out of range."); }

/// Of a property by its name, and the name of its class.
inline runtime::RuntimeError CantGet(const std::string& property, const std::string& of) {
  return Refusal("Unable to get the " + property + " property of the " + of + " class");
}
inline runtime::RuntimeError CantSet(const std::string& property, const std::string& of) {
  return Refusal("Unable to set the " + property + " property of the " + of + " class");
}

inline runtime::RuntimeError MethodFailed(const std::string& method, const std::string& object) {
  return Refusal("Method '" + method + "' of object '" + object + "' failed");
}

}  // namespace plotsmith::xlsx
