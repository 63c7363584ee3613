#include "render/plot/Markers.h"

#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

/// Returns whether a marker consists of lines and has no inside.
bool IsOpen(const std::string& symbol) { return symbol == "x" || symbol == "plus" || symbol == "star"; }

Path OutlineOf(const std::string& symbol, Point center, double size) {
  const double half = size / 2;
  const Rect box{center.x - half, center.y - half, size, size};
  Path path;
  if (symbol == "square") return path.AddRect(box);
  if (symbol == "circle") return path.AddEllipse(box);
  if (symbol == "diamond") {
    return path.AddPolygon(
        {{center.x, box.top}, {box.Right(), center.y}, {center.x, box.Bottom()}, {box.left, center.y}});
  }
  if (symbol == "triangle") {
    return path.AddPolygon({{center.x, box.top}, {box.Right(), box.Bottom()}, {box.left, box.Bottom()}});
  }
  constexpr double kThin = 0.3;  // the height of a dash as a share of its width
  if (symbol == "dash") return path.AddRect({box.left, center.y - half * kThin, size, size * kThin});
  if (symbol == "dot") return path.AddRect({center.x, center.y - half * kThin, half, size * kThin});
  if (symbol == "x" || symbol == "star") {
    path.MoveTo({box.left, box.top}).LineTo({box.Right(), box.Bottom()});
    path.MoveTo({box.Right(), box.top}).LineTo({box.left, box.Bottom()});
  }
  if (symbol == "plus") path.MoveTo({box.left, center.y}).LineTo({box.Right(), center.y});
  if (symbol == "plus" || symbol == "star") path.MoveTo({center.x, box.top}).LineTo({center.x, box.Bottom()});
  return path;
}

}  // namespace

void DrawMarker(Canvas& canvas, Tag tag, const MarkerModel& marker, Point center) {
  if (marker.symbol == "none" || marker.symbol == "picture") return;
  ShapeStyle style = marker.style;
  if (IsOpen(marker.symbol)) style.fill = {};
  AddShape(canvas, tag, OutlineOf(marker.symbol, center, marker.size), style);
}

}  // namespace plotsmith::render
