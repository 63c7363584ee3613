#pragma once

#include <future>

#include "cli/Streams.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// The painter of this process, which is loaded by the first call. A CommandError where it isn't there, or
/// isn't of this version.
const render::Painter& LoadPainter();
/// Begins to load the painter and the list of fonts, beside what the caller does next. What is returned waits
/// for the end of that when it is destroyed. A failure is left to LoadPainter.
[[nodiscard]] std::future<void> LoadPainterAhead();
/// Says on `streams` if there is no font to draw texts with. Returns true if it was said.
bool SayIfFontsAreMissing(const Streams& streams);

}  // namespace plotsmith::cli
