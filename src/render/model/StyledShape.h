#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Appends a path in a style: its shadow, and on it the path itself.
void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style);
/// The same of the frame around a text. Without filling and line, the text would have the shadow; that isn't
/// drawn, which a sentence says.
void AddTextFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style);

}  // namespace plotsmith::render
