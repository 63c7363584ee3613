#include "qt/book/SheetSource.h"

#include <algorithm>
#include <utility>

#include "host/excel/Constants.h"
#include "qt/Texts.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Sheet.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::qtbook {
namespace {

ShownFrame FrameOf(const std::shared_ptr<xlsx::SheetShape>& shape) {
  const xlsx::Frame place = shape->PlacedFrame();
  ShownFrame frame;
  frame.place = QRectF(place.left, place.top, place.width, place.height);
  frame.isChart = shape->Type() == excel::msoChart;
  frame.alternativeText = shape->AlternativeText();
  frame.label = qt::TextOf(shape->Name());
  if (shape->Type() == excel::msoTextBox) {
    const std::string text = runtime::ToUtf8(shape->Text());
    if (!text.empty()) frame.label = qt::TextOf(text);
  }
  frame.chart = [chart = frame.isChart, weak = std::weak_ptr(shape)]() -> excel::Ref<excel::Chart> {
    const auto held = chart ? weak.lock() : nullptr;
    return held ? held->Book().Viewed([&] { return held->Chart(); }) : nullptr;
  };
  return frame;
}

}  // namespace

std::size_t FindChart(const std::vector<ShownFrame>& frames, const std::string& alternativeText) {
  const auto found = std::find_if(frames.begin(), frames.end(), [&](const ShownFrame& frame) {
    return frame.isChart && frame.alternativeText == alternativeText;
  });
  return static_cast<std::size_t>(found - frames.begin());
}

SheetSource::SheetSource(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet)
    : book_(book), sheet_(std::move(sheet)), looks_(book) {}

template <class Question>
auto SheetSource::Ask(Question&& question) {
  const auto entry = sheet_.lock();
  if (!entry || !entry->worksheet) throw runtime::RuntimeError(runtime::error::kApplication);
  return book_.Viewed([&] { return question(*entry->worksheet); });
}

bool SheetSource::IsEmptyAt(std::int32_t row, std::int32_t column) {
  ++cellsRead_;
  return Ask([&](xlsx::Worksheet& sheet) {
    return sheet.Stored(row, column).kind == excel::CellValue::Kind::kEmpty;
  });
}

xlsx::CellContents SheetSource::CellAt(std::int32_t row, std::int32_t column) {
  ++cellsRead_;
  return Ask([&](xlsx::Worksheet& sheet) { return xlsx::ContentsAt(sheet, row, column); });
}

const xlsx::SheetGeometry& SheetSource::Geometry() {
  return *Ask([](xlsx::Worksheet& sheet) { return &sheet.Geometry(); });
}

int SheetSource::DigitWidth() const { return xlsx::DigitWidth(book_.Styles()); }

const std::vector<xlsx::CellRange>& SheetSource::MergedCells() {
  return *Ask([](xlsx::Worksheet& sheet) { return &sheet.MergedCells(); });
}

xlsx::CellRange SheetSource::UsedCells() {
  return Ask([](xlsx::Worksheet& sheet) { return sheet.UsedCells(); });
}

xlsx::SheetView SheetSource::View() {
  return Ask([](xlsx::Worksheet& sheet) { return sheet.View(); });
}

std::vector<ShownFrame> SheetSource::Frames() {
  return Ask([](xlsx::Worksheet& sheet) {
    std::vector<ShownFrame> frames;
    if (const xlsx::SheetDrawing* drawing = sheet.FindDrawing()) {
      for (const auto& shape : drawing->Shapes()) frames.push_back(FrameOf(shape));
    }
    return frames;
  });
}

}  // namespace plotsmith::qtbook
