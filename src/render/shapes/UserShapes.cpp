#include "render/shapes/UserShapes.h"

#include <cmath>

#include "render/shapes/ShapeObjects.h"
#include "runtime/RuntimeError.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartDrawing.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

namespace xml = xlsx::xml;

/// Returns a point on the chart from a corner of an anchor, which contains fractions of the chart's size.
Point PlaceOf(pugi::xml_node corner, const Rect& chart) {
  const auto fraction = [&](const char* name) {
    const double value = xml::ParseDouble(xml::Text(xml::Child(corner, name))).value_or(0);
    return std::isfinite(value) ? value : 0;
  };
  return {fraction("x") * chart.width, fraction("y") * chart.height};
}

Rect FrameOf(pugi::xml_node anchor, const Rect& chart) {
  const Point from = PlaceOf(xml::Child(anchor, "from"), chart);
  if (const auto extent = xml::Child(anchor, "ext")) {
    return {from.x, from.y, xlsx::PointsOf(extent, "cx"), xlsx::PointsOf(extent, "cy")};
  }
  const Point to = PlaceOf(xml::Child(anchor, "to"), chart);
  return {from.x, from.y, to.x - from.x, to.y - from.y};
}

}  // namespace

void DrawUserShapes(xlsx::ChartPart& part, Canvas& canvas) {
  const auto link = xml::Child(part.Space(), "userShapes");
  if (!link) return;
  try {
    const auto target = part.Book().Package().FindRelationship(part.Part(), xml::RelationshipId(link));
    const ImageSource images = ImagesOf(part.Book(), target ? target->target : "");
    int number = 0;
    for (const auto& shape : part.Drawing().Shapes()) {
      DrawShapeObject(canvas, part, shape->Object(), FrameOf(shape->Anchor(), canvas.Bounds()), ++number,
                      images);
    }
  } catch (const runtime::RuntimeError& e) {
    canvas.Note(e.what());
  }
}

}  // namespace plotsmith::render
