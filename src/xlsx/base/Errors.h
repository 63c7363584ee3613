#pragma once

#include <string>

#include "runtime/RuntimeError.h"

/// The errors that the host raises where Excel refuses a call, with Excel's texts. All of them are error
/// 1004.
namespace plotsmith::xlsx {

/// Returns error 1004 with the text `sentence`.
inline runtime::RuntimeError Refusal(std::string sentence) {
  return {runtime::error::kApplication, std::move(sentence)};
}

/// The error for a value that Excel doesn't accept.
inline runtime::RuntimeError OutOfRange() { return Refusal("The specified value is out of range."); }

/// The error for a property that can't be read or set on an object of the class `of`.
/// @{
inline runtime::RuntimeError CantGet(const std::string& property, const std::string& of) {
  return Refusal("Unable to get the " + property + " property of the " + of + " class");
}
inline runtime::RuntimeError CantSet(const std::string& property, const std::string& of) {
  return Refusal("Unable to set the " + property + " property of the " + of + " class");
}
///@}

/// The error for a method that has failed. `object` is the name of the object's class.
inline runtime::RuntimeError MethodFailed(const std::string& method, const std::string& object) {
  return Refusal("Method '" + method + "' of object '" + object + "' failed");
}

}  // namespace plotsmith::xlsx
