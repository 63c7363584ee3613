#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns a filling that makes a circle look like a ball which is lit from the upper left. Only solid
/// fillings are changed; other fillings are returned as they are.
Fill AsBall(const Fill& fill);

}  // namespace plotsmith::render
