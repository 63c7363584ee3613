#pragma once

#include "render/Canvas.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws the shapes on a chart, from back to front. Adds a note if the part with the shapes can't be read.
void DrawUserShapes(xlsx::ChartPart& part, Canvas& canvas);

}  // namespace plotsmith::render
