#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Adds the shadow of a path and then the path in its style.
void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style);
/// Appends a frame in a style. The frame is one item, even if it is invisible.
void AddFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style);
/// Appends the frame around a text. If the frame has neither fill nor line, its shadow is that of the text.
/// Such shadows aren't drawn, and a note says that.
void AddTextFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style);

}  // namespace plotsmith::render
