#pragma once

#include "cli/Streams.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// The painter of this process, which is loaded by the first call. A CommandError where it isn't there, or
/// isn't of this version.
const render::Painter& LoadPainter();
/// Says on `streams` if there is no font to draw texts with. Returns true if it was said.
bool SayIfFontsAreMissing(const Streams& streams);

}  // namespace plotsmith::cli
