#pragma once

#include <new>

#include "windows/com/Windows.h"
namespace plotsmith::windows {

/// Runs code that a client of COM has called. A client may be written in any language, so no C++ exception
/// may reach it: an exception becomes the result of the call.
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
