#pragma once

#include <future>

#include "cli/Streams.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// Returns the painter of this process. The first call loads it with the list of fonts, and other threads
/// wait for that. Throws CommandError if it is missing or has another version.
const render::Painter& LoadPainter();
/// Begins to load the painter and the list of fonts in a thread. The destructor of the result waits for the
/// thread. LoadPainter reports a failure.
[[nodiscard]] std::future<void> LoadPainterAhead();
/// Reports on `streams` if no font is installed. Returns true in this case.
bool ReportMissingFonts(const Streams& streams);

}  // namespace plotsmith::cli
