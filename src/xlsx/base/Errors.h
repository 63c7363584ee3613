#pragma once

#include <string>

#include "runtime/RuntimeError.h"

/// The errors that the host raises where Excel refuses a call, in Excel's words. All of them are error 1004.
namespace plotsmith::xlsx {

/// A refusal in a sentence of its own.
inline runtime::RuntimeError Refusal(std::string sentence) {
  return {runtime::error::kApplication, std::move(sentence)};
}

/// A value that Excel doesn't take.
inline runtime::RuntimeError OutOfRange() { return Refusal("The specified value is out of range."); }

/// A property, by its name, that can't be read or set on an object of the class `of`.
///@{
inline runtime::RuntimeError CantGet(const std::string& property, const std::string& of) {
  return Refusal("Unable to get the " + property + " property of the " + of + " class");
}
inline runtime::RuntimeError CantSet(const std::string& property, const std::string& of) {
  return Refusal("Unable to set the " + property + " property of the " + of + " class");
}
///@}

/// A method that failed, by the names of the method and of its object.
inline runtime::RuntimeError MethodFailed(const std::string& method, const std::string& object) {
  return Refusal("Method '" + method + "' of object '" + object + "' failed");
}

}  // namespace plotsmith::xlsx
