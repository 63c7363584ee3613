#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Appends a path in a style: its shadow, and on it the path itself.
void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style);

}  // namespace plotsmith::render
