#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>
#include <algorithm>
#include <cmath>

#include "qt/Texts.h"
#include "qt/book/Colors.h"
#include "qt/book/SheetView.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::qtbook {

using xlsx::CellPlace;
using xlsx::CellRange;
using xlsx::TextSide;
namespace limits = xlsx::limits;

namespace {

/// Shares of the text colour in lines, and of the highlight colour in headings.
constexpr double kGridLine = 0.13, kHeadLine = 0.2, kFreezeLine = 0.45, kActiveHead = 0.35;
/// The number of columns to the left of the window that are searched for a text that extends into it.
constexpr std::int32_t kMostSpread = 30;
/// The margin around the sentence for a sheet that can't be read, in pixels.
constexpr int kFailureMargin = 30;

QRect AreaOf(const Line& row, const Line& column) { return {column.edge, row.edge, column.size, row.size}; }

}  // namespace

bool SheetView::PaneCells::IsMerged(std::int32_t row, std::int32_t column) const {
  return std::any_of(merged.begin(), merged.end(), [&](const CellRange& range) {
    return range.Contains({row, column});
  });
}

/// Returns true if the text of a neighbour may extend over the cell.
bool SheetView::PaneCells::IsFree(std::size_t row, std::size_t column) const {
  return At(row, column).IsEmpty() && !IsMerged(rows[row].number, columns[column].number);
}

void SheetView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  Guarded([&] {
    CellPainter cellPainter(source_, palette(), zoom_);
    for (const Pane& pane : Panes()) {
      painter.save();
      painter.setClipRect(pane.area);
      PaintPane(painter, pane, cellPainter);
      painter.restore();
    }
    PaintFreezeLines(painter);
    if (view_.headings) PaintHeads(painter);
  });
  if (unreadable_.isEmpty()) return;
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Text));
  painter.setFont(font());
  painter.drawText(
      viewport()->rect().adjusted(kFailureMargin, kFailureMargin, -kFailureMargin, -kFailureMargin),
      Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, unreadable_);
}

SheetView::PaneCells SheetView::CellsOf(const Pane& pane) {
  PaneCells shown;
  const QRect place = pane.area.translated(-pane.origin);
  shown.rows = Rows().LinesBetween(place.top(), place.bottom() + 1);
  shown.columns = Columns().LinesBetween(place.left(), place.right() + 1);
  if (shown.rows.empty() || shown.columns.empty()) return {};
  shown.cells.reserve(shown.rows.size() * shown.columns.size());
  for (const Line& row : shown.rows) {
    for (const Line& column : shown.columns) shown.cells.push_back(source_.CellAt(row.number, column.number));
  }
  for (const CellRange& range : source_.MergedCells()) {
    if (range.row2 >= shown.rows.front().number && range.row1 <= shown.rows.back().number &&
        range.column2 >= shown.columns.front().number && range.column1 <= shown.columns.back().number)
      shown.merged.push_back(range);
  }
  return shown;
}

void SheetView::PaintPane(QPainter& painter, const Pane& pane, CellPainter& cellPainter) {
  const PaneCells shown = CellsOf(pane);
  if (view_.gridLines) PaintGridLines(painter, pane, shown);
  PaintFills(painter, pane, shown, cellPainter);
  PaintTexts(painter, pane, shown, cellPainter);
  PaintMerged(painter, pane, shown, cellPainter);
  PaintBorders(painter, pane, shown);
  PaintFrames(painter, pane);
  PaintActiveCell(painter, pane);
}

void SheetView::PaintGridLines(QPainter& painter, const Pane& pane, const PaneCells& shown) {
  if (shown.cells.empty()) return;
  const QColor color = TextShade(palette(), kGridLine);
  const Line &lastRow = shown.rows.back(), &lastColumn = shown.columns.back();
  const int right = pane.origin.x() + lastColumn.edge + lastColumn.size;
  const int bottom = pane.origin.y() + lastRow.edge + lastRow.size;
  for (const Line& row : shown.rows) {
    const int y = pane.origin.y() + row.edge + row.size - 1;
    painter.fillRect(pane.area.left(), y, right - pane.area.left(), 1, color);
  }
  for (const Line& column : shown.columns) {
    const int x = pane.origin.x() + column.edge + column.size - 1;
    painter.fillRect(x, pane.area.top(), 1, bottom - pane.area.top(), color);
  }
}

/// Paints the fills, which cover the gridlines around their cells.
void SheetView::PaintFills(QPainter& painter, const Pane& pane, const PaneCells& shown,
                           CellPainter& cellPainter) {
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    for (std::size_t column = 0; column < shown.columns.size(); ++column) {
      const xlsx::CellContents& cell = shown.At(row, column);
      if (!cellPainter.HasFill(cell)) continue;
      const QRect area = AreaOf(shown.rows[row], shown.columns[column]).translated(pane.origin);
      painter.fillRect(area.adjusted(-1, -1, 0, 0), cellPainter.Background(cell));
    }
  }
}

void SheetView::PaintTexts(QPainter& painter, const Pane& pane, const PaneCells& shown,
                           CellPainter& cellPainter) {
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    PaintTextFromOutside(painter, pane, shown, row, cellPainter);
    for (std::size_t column = 0; column < shown.columns.size(); ++column) {
      if (!shown.IsFree(row, column)) PaintText(painter, pane, shown, row, column, cellPainter);
    }
  }
}

/// Paints the text of a cell. A long text extends over empty adjacent cells.
void SheetView::PaintText(QPainter& painter, const Pane& pane, const PaneCells& shown, std::size_t row,
                          std::size_t column, CellPainter& cellPainter) {
  const xlsx::CellContents& cell = shown.At(row, column);
  if (cell.IsEmpty() || shown.IsMerged(shown.rows[row].number, shown.columns[column].number)) return;
  QRect area = AreaOf(shown.rows[row], shown.columns[column]).translated(pane.origin);
  if (!cellPainter.MaySpread(cell)) return cellPainter.Paint(painter, cell, area);

  const int missing = cellPainter.WidthOf(cell) - area.width();
  const TextSide side = cellPainter.SideOf(cell);
  const int half = side == TextSide::kMiddle ? (missing + 1) / 2 : missing;
  int toRight = side == TextSide::kRight ? 0 : half, toLeft = side == TextSide::kLeft ? 0 : half;
  const auto cover = [&](std::size_t other, int line) {
    // Remove the gridline between both cells, unless the other cell's fill has covered it.
    if (view_.gridLines)
      painter.fillRect(line, area.top(), 1, area.height() - 1, cellPainter.Background(shown.At(row, other)));
  };
  for (std::size_t other = column + 1; toRight > 0 && other < shown.columns.size(); ++other) {
    if (!shown.IsFree(row, other)) break;
    cover(other, area.right());
    toRight -= shown.columns[other].size;
    area.setRight(area.right() + shown.columns[other].size);
  }
  for (std::size_t other = column; toLeft > 0 && other-- > 0;) {
    if (!shown.IsFree(row, other)) break;
    cover(other, area.left() - 1);
    toLeft -= shown.columns[other].size;
    area.setLeft(area.left() - shown.columns[other].size);
  }
  // Centre the text in its own cell, not in all cells that it covers.
  if (side == TextSide::kMiddle && missing > 0) {
    const QRect own = AreaOf(shown.rows[row], shown.columns[column]).translated(pane.origin);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    cellPainter.Paint(painter, cell, own.adjusted(-half, 0, half, 0));
    painter.restore();
    return;
  }
  cellPainter.Paint(painter, cell, area);
}

/// Paints the text of a cell to the left of the pane that extends into it.
void SheetView::PaintTextFromOutside(QPainter& painter, const Pane& pane, const PaneCells& shown,
                                     std::size_t row, CellPainter& cellPainter) {
  if (!shown.IsFree(row, 0)) return;
  const std::int32_t number = shown.rows[row].number, first = shown.columns.front().number;
  const bool isBody = pane.area.left() > headWidth_ + 1;
  const std::int32_t from = std::max(isBody ? view_.frozenColumns + 1 : 1, first - kMostSpread);
  std::int32_t column = std::min(first - 1, used_.column2);
  while (column >= from && source_.IsEmptyAt(number, column)) --column;
  if (column < from) return;
  const xlsx::CellContents cell = source_.CellAt(number, column);
  if (!cellPainter.MaySpread(cell) || cellPainter.SideOf(cell) != TextSide::kLeft ||
      FirstOfMerged({number, column}) != CellPlace{number, column})
    return;
  std::size_t last = 0;
  while (last + 1 < shown.columns.size() && shown.IsFree(row, last + 1)) ++last;
  const Line& end = shown.columns[last];
  const int left = Columns().EdgeOf(column);
  const QRect area(left, shown.rows[row].edge, end.edge + end.size - left, shown.rows[row].size);
  const int textEnd = left + cellPainter.WidthOf(cell);
  for (std::size_t i = 0; view_.gridLines && i < last && shown.columns[i].edge < textEnd; ++i) {
    const int line = pane.origin.x() + shown.columns[i].edge + shown.columns[i].size - 1;
    painter.fillRect(line, pane.origin.y() + area.top(), 1, area.height() - 1,
                     cellPainter.Background(shown.At(row, i)));
  }
  cellPainter.Paint(painter, cell, area.translated(pane.origin));
}

void SheetView::PaintMerged(QPainter& painter, const Pane& pane, const PaneCells& shown,
                            CellPainter& cellPainter) {
  for (const CellRange& range : shown.merged) {
    const QRect area = PlaceOf(range).translated(pane.origin);
    const xlsx::CellContents cell = source_.CellAt(range.row1, range.column1);
    const bool filled = cellPainter.HasFill(cell) || !view_.gridLines;
    painter.fillRect(filled ? area.adjusted(-1, -1, 0, 0) : area.adjusted(0, 0, -1, -1),
                     cellPainter.Background(cell));
    cellPainter.Paint(painter, cell, area);
  }
}

/// Paints the borders, which are on the gridlines. A wide border extends into both cells.
void SheetView::PaintBorders(QPainter& painter, const Pane& pane, const PaneCells& shown) {
  const QColor base = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  const auto paint = [&](const xlsx::BorderLine& line, int x, int y, int length, Qt::Orientation direction) {
    if (line.width == 0) return;
    const int width = std::max(1, static_cast<int>(std::lround(line.width * zoom_)));
    const QColor color = line.color ? Readable(FromExcel(*line.color), base, palette()) : text;
    const int from = (width - 1) / 2;
    const QRect area =
        direction == Qt::Vertical ? QRect(x - from, y, width, length) : QRect(x, y - from, length, width);
    painter.fillRect(area, color);
  };
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    for (std::size_t column = 0; column < shown.columns.size(); ++column) {
      const xlsx::CellLook& look = source_.LookOf(shown.At(row, column).style);
      const QRect area = AreaOf(shown.rows[row], shown.columns[column]).translated(pane.origin);
      const int left = area.left() - 1, top = area.top() - 1;
      paint(look.left, left, top, area.height() + 1, Qt::Vertical);
      paint(look.right, area.right(), top, area.height() + 1, Qt::Vertical);
      paint(look.top, left, top, area.width() + 1, Qt::Horizontal);
      paint(look.bottom, left, area.bottom(), area.width() + 1, Qt::Horizontal);
    }
  }
}

void SheetView::PaintFrames(QPainter& painter, const Pane& pane) {
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    const QRect area = PlaceOf(frames_[i]).translated(pane.origin);
    if (area.intersects(pane.area)) framePainter_.Paint(painter, i, frames_[i], area, palette(), font());
  }
}

void SheetView::PaintActiveCell(QPainter& painter, const Pane& pane) {
  CellRange cell{activeCell_.row, activeCell_.column, activeCell_.row, activeCell_.column};
  for (const CellRange& range : source_.MergedCells()) {
    if (range.Contains(activeCell_)) cell = range;
  }
  const QRect area = PlaceOf(cell).translated(pane.origin);
  if (!area.intersects(pane.area)) return;
  constexpr int kThickness = 2;
  const QRect outer = area.adjusted(-1, -1, 0, 0);
  const QColor color = palette().color(QPalette::Highlight);
  painter.fillRect(outer.left(), outer.top(), outer.width(), kThickness, color);
  painter.fillRect(outer.left(), outer.bottom() - kThickness + 1, outer.width(), kThickness, color);
  painter.fillRect(outer.left(), outer.top(), kThickness, outer.height(), color);
  painter.fillRect(outer.right() - kThickness + 1, outer.top(), kThickness, outer.height(), color);
}

void SheetView::PaintFreezeLines(QPainter& painter) {
  const QRect body = BodyArea();
  const QColor color = TextShade(palette(), kFreezeLine);
  if (body.left() > headWidth_) painter.fillRect(body.left() - 1, 0, 1, viewport()->height(), color);
  if (body.top() > headHeight_) painter.fillRect(0, body.top() - 1, viewport()->width(), 1, color);
}

void SheetView::PaintHead(QPainter& painter, const QRect& area, const QString& text, bool active) {
  const QColor button = palette().color(QPalette::Button);
  const QColor back = active ? Between(button, palette().color(QPalette::Highlight), kActiveHead) : button;
  const QColor line = Between(button, palette().color(QPalette::ButtonText), kHeadLine);
  painter.fillRect(area, back);
  painter.fillRect(area.right(), area.top(), 1, area.height(), line);
  painter.fillRect(area.left(), area.bottom(), area.width(), 1, line);
  QFont face = font();
  face.setBold(active);
  painter.setFont(face);
  painter.setPen(Readable(palette().color(QPalette::ButtonText), back, palette()));
  painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, text);
}

void SheetView::PaintHeads(QPainter& painter) {
  const QRect window = viewport()->rect();
  for (const Pane& pane : Panes()) {
    const QRect place = pane.area.translated(-pane.origin);
    painter.setClipRect(QRect(pane.area.left(), 0, pane.area.width(), headHeight_));
    for (const Line& column : Columns().LinesBetween(place.left(), place.right() + 1)) {
      const QRect area(pane.origin.x() + column.edge, 0, column.size, headHeight_);
      PaintHead(painter, area, qt::TextOf(xlsx::ColumnLetters(column.number)),
                column.number == activeCell_.column);
    }
    painter.setClipRect(QRect(0, pane.area.top(), headWidth_, pane.area.height()));
    for (const Line& row : Rows().LinesBetween(place.top(), place.bottom() + 1)) {
      const QRect area(0, pane.origin.y() + row.edge, headWidth_, row.size);
      PaintHead(painter, area, QString::number(row.number), row.number == activeCell_.row);
    }
  }
  painter.setClipRect(window);
  PaintHead(painter, QRect(0, 0, headWidth_, headHeight_), QString(), false);
}

}  // namespace plotsmith::qtbook
