#pragma once

#include <new>
#include <type_traits>

#include "common/Messages.h"
#include "runtime/RuntimeError.h"

/// The three ways in which the system handles errors: error blocks (ReportErrors, HandleErrors), statements
/// that may fail one by one (IgnoreErrors), and reads that convert an error to a value (ValueOr). No other
/// code of the system has a try block.
namespace plotsmith {

/// The error block of a procedure. An error ends `body` and is shown under the procedure's name.
template <class Body>
requires std::is_void_v<std::invoke_result_t<Body>>
void ReportErrors(const char* sProcedure, Body&& body) {
  try {
    body();
  } catch (...) {
    ShowErrorReport(sProcedure, runtime::CurrentError());
  }
}

/// The error block of a function. After an error the result is `vHeld`.
template <class Result, class Body>
Result ReportErrors(const char* sProcedure, Result vHeld, Body&& body) {
  ReportErrors(sProcedure, [&] { vHeld = body(); });
  return vHeld;
}

/// An error block that calls `handler` with the error.
template <class Body, class Handler>
void HandleErrors(Body&& body, Handler&& handler) {
  try {
    body();
  } catch (...) {
    handler(runtime::CurrentError());
  }
}

/// Runs statements one after the other. If a statement fails, the next one runs.
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

/// Returns the result of a read, or `vFallback` if the read fails.
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
