#pragma once

#include "runtime/RuntimeError.h"
#include "windows/com/Windows.h"

/// @file
/// Conversions of Automation's results to run-time errors.
namespace plotsmith::com {

/// Returns the run-time error for a result. Results of Visual Basic's facility (0x800Annnn) give the error
/// nnnn, results of Automation give the number that Visual Basic has for them, and all others keep their
/// value as a negative number.
runtime::RuntimeError ErrorOf(HRESULT result);
/// Returns the run-time error for a call that failed with DISP_E_EXCEPTION. The texts in `exception` are
/// freed.
runtime::RuntimeError ErrorOf(EXCEPINFO& exception);

}  // namespace plotsmith::com
