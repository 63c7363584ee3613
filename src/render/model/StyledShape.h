#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Adds the shadow of a path and then the path in its style.
void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style);
/// Adds the frame around a text, with its shadow. If the frame has neither filling nor line, the text would
/// throw the shadow. That shadow isn't drawn, and a note reports it.
void AddTextFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style);

}  // namespace plotsmith::render
