#pragma once

#include <new>

#include "windows/com/Windows.h"
namespace plotsmith::windows {

/// Runs what a client of COM has called. Exceptions of C++ must not reach a client, which may be written in
/// any language: they become the error that the call answers.
template <class Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace plotsmith::windows
