#pragma once

#include "render/Canvas.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws the shapes on a chart, from back to front. A part of them that can't be read is noted.
void DrawUserShapes(xlsx::ChartPart& part, Canvas& canvas);

}  // namespace plotsmith::render
