#pragma once

#include "runtime/RuntimeError.h"
#include "windows/com/Windows.h"

/// @file
/// Failures between the language run-time and Automation.
namespace plotsmith::com {

/// The error that the language shows for a failure. Results of the language's own facility (0x800Annnn) are
/// errors by their number, those of Automation have a number in the language, and all others keep theirs, as
/// a negative one.
runtime::RuntimeError ErrorOf(HRESULT result);
/// The same of a call that failed with DISP_E_EXCEPTION. What the exception holds is freed.
runtime::RuntimeError ErrorOf(EXCEPINFO& exception);

/// The result that bears the number of an error.
HRESULT ResultOf(const runtime::RuntimeError& failure);
/// Describes an error to the caller of IDispatch::Invoke, which then returns DISP_E_EXCEPTION. `exception`
/// may be null.
HRESULT FillException(const runtime::RuntimeError& failure, EXCEPINFO* exception);

}  // namespace plotsmith::com
