#pragma once

#include "cli/Streams.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// Returns the painter of this process, which is loaded by the first call. Throws CommandError if it is
/// missing or has another version.
const render::Painter& LoadPainter();
/// Reports on `streams` if no font is installed. Returns true in this case.
bool SayIfFontsAreMissing(const Streams& streams);

}  // namespace plotsmith::cli
