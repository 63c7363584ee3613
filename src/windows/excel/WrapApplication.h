#pragma once

#include "host/excel/Application.h"
#include "windows/com/Windows.h"

namespace plotsmith::excel {

/// Excel behind the port: an Application that passes each call on to `application`, of which it holds a
/// reference as long as it exists. Null is Nothing. Use it on the thread on which the object lives.
Ref<Application> WrapApplication(IDispatch* application);

}  // namespace plotsmith::excel
