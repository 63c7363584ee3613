#pragma once

#include <string>

#include "runtime/RuntimeError.h"

namespace plotsmith::test {

/// Returns the number of the run-time error that a call raises, or 0.
template <class Call>
int ErrorOf(Call&& call) {
  try {
    call();
    return 0;
  } catch (const runtime::RuntimeError& e) {
    return e.Number();
  }
}

/// Returns the text of the error of a type that a call raises, or "".
template <class Error, class Call>
std::string ErrorTextOf(Call&& call) {
  try {
    call();
    return "";
  } catch (const Error& e) {
    return e.what();
  }
}

}  // namespace plotsmith::test
