#pragma once

#include "cli/Streams.h"
#include "cli/render/PictureOptions.h"
#include "render/Painter.h"

namespace plotsmith::cli {

/// Return the parts that draw in this process. The first call loads a part together with the list of fonts,
/// and other threads wait until it is loaded. All throw CommandError if the part is missing or has another
/// version.
///@{
/// Returns the measure of texts for pictures without a painter, such as SVG. It loads faster than the
/// painter, and measures the same. It loads the painter for texts that need Pango.
const render::TextMeasure& LoadFonts();
/// Returns the painter.
const render::Painter& LoadPainter();
/// Returns the measure of texts for pictures of a format.
const render::TextMeasure& LoadMeasure(PictureFormat format);
///@}

/// Loads the measure and the most common font. Throws nothing: another thread calls LoadMeasure, which waits
/// for this and reports a failure.
void LoadMeasureAhead(PictureFormat format);
/// Reports on `streams` if no font is installed. Returns true in that case.
bool ReportMissingFonts(const render::TextMeasure& measure, const Streams& streams);

}  // namespace plotsmith::cli
