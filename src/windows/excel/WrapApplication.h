#pragma once

#include "host/excel/Application.h"
#include "windows/com/Windows.h"

namespace plotsmith::excel {

/// Returns an Application of the port that passes each call on to `application`, and holds a reference to it
/// as long as it exists. Null gives Nothing. Use it on the thread on which the object lives.
Ref<Application> WrapApplication(IDispatch* application);

}  // namespace plotsmith::excel
