#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// A filling for a circle that looks like a ball, lit from the upper left. Only plain colours become one;
/// anything else stays as it is.
Fill AsBall(const Fill& fill);

}  // namespace plotsmith::render
