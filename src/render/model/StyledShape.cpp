#include "render/model/StyledShape.h"

#include <utility>

namespace plotsmith::render {

void AddShape(Canvas& canvas, Tag tag, Path path, const ShapeStyle& style) {
  if (style.shadow) canvas.AddShadow(tag, path, style.fill, style.stroke, *style.shadow);
  canvas.Add(tag, std::move(path), style.fill, style.stroke);
}

void AddFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style) {
  if (style.shadow) canvas.AddShadow(tag, Path().AddRect(frame), style.fill, style.stroke, *style.shadow);
  canvas.AddFrame(tag, frame, style.fill, style.stroke);
}

void AddTextFrame(Canvas& canvas, Tag tag, const Rect& frame, const ShapeStyle& style) {
  const bool isSeen = !std::holds_alternative<std::monostate>(style.fill) || style.stroke.width > 0;
  if (style.shadow && !isSeen) canvas.Note("Shadows of texts aren't drawn.");
  AddShape(canvas, tag, Path().AddRect(frame), style);
}

}  // namespace plotsmith::render
