#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns a fill that makes a circle look like a ball that is lit from the upper left. Only solid fills are
/// changed; other fills are returned as they are.
Fill AsBall(const Fill& fill);

}  // namespace plotsmith::render
