#include "render/StyledShape.h"

#include <utility>

namespace plotsmith::render {

void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style) {
  if (style.shadow) canvas.AddShadow(tag, path, style.fill, style.stroke, *style.shadow);
  canvas.Add(tag, std::move(path), style.fill, style.stroke);
}

}  // namespace plotsmith::render
