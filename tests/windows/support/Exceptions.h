#pragma once

#include "runtime/RuntimeError.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Describes an error to the caller of IDispatch::Invoke, as Excel's objects do, and returns
/// DISP_E_EXCEPTION, which Invoke has to return. `exception` may be null.
HRESULT FillException(const runtime::RuntimeError& failure, EXCEPINFO* exception);

}  // namespace plotsmith::test
