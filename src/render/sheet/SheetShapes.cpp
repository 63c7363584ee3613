#include "render/sheet/SheetShapes.h"

#include <algorithm>

#include "host/excel/Constants.h"
#include "render/chart/ChartDrawing.h"
#include "render/shapes/ShapeObjects.h"
#include "runtime/RuntimeError.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/objects/Chart.h"

namespace plotsmith::render {
namespace {

Drawing DrawnChart(xlsx::SheetShape& shape, const Rect& place, const TextMeasure& measure, Notes& notes) {
  const auto chart = shape.Chart();
  const auto& held = dynamic_cast<const xlsx::Chart&>(*chart.shared());
  return DrawChart(held.Part(), place.width, place.height, measure, notes);
}

/// Draws a shape that isn't a chart, with a margin for parts outside of its frame.
DrawnShape DrawnObject(xlsx::SheetShape& shape, const Rect& place, int number, const ImageSource& images,
                       const TextMeasure& measure, Notes& notes) {
  constexpr double kThickLine = 12;
  const double room = std::max(place.width, place.height) / 2 + kThickLine;
  DrawnShape drawn{place, {}, {place.left - room, place.top - room}};
  drawn.drawing.width = place.width + 2 * room;
  drawn.drawing.height = place.height + 2 * room;
  Canvas canvas(drawn.drawing, measure, notes);
  DrawShapeObject(canvas, Palette(shape.Book().Theme()), shape.Object(),
                  {room, room, place.width, place.height}, number, images);
  return drawn;
}

}  // namespace

std::vector<DrawnShape> DrawShapes(xlsx::Workbook& book, xlsx::Worksheet& sheet, const TextMeasure& measure,
                                   Notes& notes) {
  std::vector<DrawnShape> shapes;
  const xlsx::SheetDrawing* const drawing = sheet.FindDrawing();
  if (drawing == nullptr) return shapes;
  const ImageSource images = ImagesOf(book, drawing->Part());
  int number = 0;
  for (const auto& shape : drawing->Shapes()) {
    ++number;
    const xlsx::Frame frame = shape->PlacedFrame();
    const Rect place{frame.left, frame.top, frame.width, frame.height};
    const bool isChart = shape->Type() == excel::msoChart;
    // Shapes in hidden rows or columns are skipped. A line may have no height or no width.
    if (isChart ? place.width <= 0 || place.height <= 0 : place.width <= 0 && place.height <= 0) continue;
    Notes own;
    try {
      book.Viewed([&] {
        shapes.push_back(
            isChart ? DrawnShape{place, DrawnChart(*shape, place, measure, own), {place.left, place.top}}
                    : DrawnObject(*shape, place, number, images, measure, own));
      });
    } catch (const runtime::RuntimeError&) {
      notes.push_back("\"" + shape->Name() + "\": It can't be read; nothing is drawn.");
    }
    // The notes about a shape already contain its name.
    for (const std::string& note : own)
      notes.push_back((isChart ? "\"" + shape->Name() + "\": " : "") + note);
  }
  return shapes;
}

}  // namespace plotsmith::render
