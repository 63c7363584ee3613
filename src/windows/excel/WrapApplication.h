#pragma once

#include "host/excel/Application.h"
#include "windows/com/Windows.h"

namespace plotsmith::excel {

/// Returns an Application of the port that passes each call on to `application`, and that holds a reference
/// to `application` until it is destroyed. Null gives Nothing. Use the result only on the thread of
/// `application`.
Ref<Application> WrapApplication(IDispatch* application);

}  // namespace plotsmith::excel
