#pragma once

#include "render/Painter.h"

namespace plotsmith::cli {

/// The painter of this process, which is loaded by the first call. A CommandError where it isn't there, or
/// isn't of this version.
const render::Painter& LoadPainter();

}  // namespace plotsmith::cli
