#include "render/sheet/SheetShapes.h"

#include <memory>

#include "host/excel/Constants.h"
#include "runtime/RuntimeError.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/Chart.h"

namespace plotsmith::render {
namespace {

Drawing DrawnChart(xlsx::SheetShape& shape, const Rect& place, const TextMeasure& measure, Notes& notes) {
  const auto chart = shape.Chart();
  const auto& held = dynamic_cast<const xlsx::Chart&>(*chart.shared());
  return DrawChart(held.Part(), place.width, place.height, measure, notes);
}

}  // namespace

std::vector<DrawnShape> DrawShapes(xlsx::Workbook& book, xlsx::Worksheet& sheet, const TextMeasure& measure,
                                   Notes& notes) {
  std::vector<DrawnShape> shapes;
  const xlsx::SheetDrawing* const drawing = sheet.FindDrawing();
  if (drawing == nullptr) return shapes;
  for (const auto& shape : drawing->Shapes()) {
    const xlsx::Frame frame = shape->PlacedFrame();
    if (frame.width <= 0 || frame.height <= 0) continue;  // its rows or columns are hidden
    const Rect place{frame.left, frame.top, frame.width, frame.height};
    Notes own;
    try {
      if (shape->Type() == excel::msoChart) {
        shapes.push_back({place, book.Viewed([&] { return DrawnChart(*shape, place, measure, own); })});
      } else {
        own.emplace_back("a shape of this kind isn't drawn.");
      }
    } catch (const runtime::RuntimeError&) {
      own.emplace_back("the chart can't be read; nothing is drawn.");
    }
    for (const std::string& note : own) notes.push_back("\"" + shape->Name() + "\": " + note);
  }
  return shapes;
}

}  // namespace plotsmith::render
