#pragma once

#include <new>
#include <type_traits>

#include "common/Messages.h"
#include "runtime/RuntimeError.h"

/// The shapes that dealing with an error has in this system: error blocks (ReportErrors, HandleErrors),
/// statements that may fail one by one (IgnoreErrors), reads that turn failure into a value (ValueOr). There
/// is no other try in it.
namespace plotsmith {

/// A procedure's error block: an error skips the rest of `body`, is shown under the procedure's name, and
/// ends there.
template <class Body>
requires std::is_void_v<std::invoke_result_t<Body>>
void ReportErrors(const char* sProcedure, Body&& body) {
  try {
    body();
  } catch (...) {
    ShowErrorReport(sProcedure, runtime::CurrentError());
  }
}

/// The same for a function: `vHeld` is its result after an error.
template <class Result, class Body>
Result ReportErrors(const char* sProcedure, Result vHeld, Body&& body) {
  ReportErrors(sProcedure, [&] { vHeld = body(); });
  return vHeld;
}

/// An error block that does something of its own.
template <class Body, class Handler>
void HandleErrors(Body&& body, Handler&& handler) {
  try {
    body();
  } catch (...) {
    handler(runtime::CurrentError());
  }
}

/// Statements with errors ignored: one that fails is passed over, and the next runs.
template <class... Statements>
void IgnoreErrors(Statements&&... statements) {
  const auto guard = [](auto&& statement) {
    try {
      statement();
    } catch (const std::bad_alloc&) {
      runtime::memoryRanOut = true;
    } catch (...) {
    }
  };
  (guard(statements), ...);
}

/// A read in which failure is a value.
template <class Result, class Read>
Result ValueOr(Result vFallback, Read&& read) {
  try {
    return read();
  } catch (const std::bad_alloc&) {
    runtime::memoryRanOut = true;
    return vFallback;
  } catch (...) {
    return vFallback;
  }
}

}  // namespace plotsmith
