#pragma once

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

}  // namespace plotsmith::test
