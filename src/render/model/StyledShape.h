#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Adds the shadow of a path and then the path in its style.
void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style);
/// The same of the frame around a text. Without filling and line, the text would have the shadow; that isn't
/// drawn, which a sentence says.
void AddTextFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style);

}  // namespace plotsmith::render
