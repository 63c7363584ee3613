#pragma once

#include "runtime/RuntimeError.h"

namespace plotsmith::test {

/// The number of the run-time error that a call ends in, 0 for none.
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
