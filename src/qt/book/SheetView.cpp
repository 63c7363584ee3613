#include "qt/book/SheetView.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/Texts.h"
#include "qt/book/SheetAccessible.h"
#include "runtime/RuntimeError.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::qtbook {

using xlsx::CellPlace;
using xlsx::CellRange;
namespace limits = xlsx::limits;

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;
constexpr double kLeastZoom = 0.5, kMostZoom = 2, kZoomStep = 0.1;
constexpr int kHeadPadding = 6;
/// The distance for an arrow of a scroll bar, or for a third of a wheel notch, in pixels.
constexpr int kScrollStep = 20;

}  // namespace

SheetView::SheetView(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet, QWidget* parent)
    : QAbstractScrollArea(parent), source_(book, std::move(sheet)) {
  InstallSheetAccessible();
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setLayoutDirection(Qt::LeftToRight);  // Columns run from left to right in every language.
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  horizontalScrollBar()->setSingleStep(kScrollStep);
  verticalScrollBar()->setSingleStep(kScrollStep);
  Refresh();
  Guarded([&] {
    const QSize frozen = FrozenSize();
    horizontalScrollBar()->setValue(Columns().EdgeOf(view_.topLeft.column) - frozen.width());
    verticalScrollBar()->setValue(Rows().EdgeOf(view_.topLeft.row) - frozen.height());
  });
}

void SheetView::ShowFailure(const runtime::RuntimeError& error) {
  unreadable_ = qt::TextOf(error.Description());
  viewport()->update();
}

void SheetView::SetChartPainter(const ChartPainter& painter) {
  framePainter_.SetChartPainter(painter);
  viewport()->update();
}

void SheetView::Refresh() {
  unreadable_.clear();
  Guarded([&] {
    source_.DiscardLooks();
    framePainter_.DiscardPictures();
    const CellPlace before = view_.activeCell;
    view_ = source_.View();
    used_ = source_.UsedCells();
    frames_ = source_.Frames();
    UpdateScrollBars();
    if (view_.activeCell != before) SetActiveCell(view_.activeCell);
  });
  viewport()->update();
}

double SheetView::Scale() const { return kPixelsPerPoint * zoom_; }

SheetGrid SheetView::Rows() { return {source_.Geometry().rows, limits::kRows, Scale()}; }

SheetGrid SheetView::Columns() { return {source_.Geometry().columns, limits::kColumns, Scale()}; }

void SheetView::SetZoom(double zoom) {
  zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
  if (zoom == zoom_) return;
  Guarded([&] {
    // The cell at the corner doesn't move.
    const QSize frozen = FrozenSize();
    const std::int32_t row = Rows().NumberAt(verticalScrollBar()->value() + frozen.height());
    const std::int32_t column = Columns().NumberAt(horizontalScrollBar()->value() + frozen.width());
    zoom_ = zoom;
    const QSize zoomed = FrozenSize();
    const int left = Columns().EdgeOf(column) - zoomed.width(), top = Rows().EdgeOf(row) - zoomed.height();
    UpdateScrollBars();
    horizontalScrollBar()->setMaximum(std::max(horizontalScrollBar()->maximum(), left));
    verticalScrollBar()->setMaximum(std::max(verticalScrollBar()->maximum(), top));
    horizontalScrollBar()->setValue(left);
    verticalScrollBar()->setValue(top);
    UpdateScrollBars();
  });
  viewport()->update();
}

void SheetView::StepZoom(int steps) { SetZoom((std::round(zoom_ / kZoomStep) + steps) * kZoomStep); }

void SheetView::MeasureHeads() {
  if (!view_.headings) {
    headWidth_ = headHeight_ = 0;
    return;
  }
  const QFontMetrics metrics(font());
  headHeight_ = metrics.height() + kHeadPadding;
  // Reserve space for the largest visible row number.
  const int height = viewport()->height();
  const std::int32_t last = Rows().NumberAt(verticalScrollBar()->value() + height);
  const auto digits = std::max<qsizetype>(3, QString::number(last).size());
  headWidth_ = metrics.horizontalAdvance(QLatin1Char('0')) * static_cast<int>(digits) + 2 * kHeadPadding;
}

/// Returns the size of the frozen rows and columns. It is empty if they would fill the window.
QSize SheetView::FrozenSize() {
  const QSize room = viewport()->size() - QSize(headWidth_, headHeight_);
  int width = Columns().EdgeOf(view_.frozenColumns + 1), height = Rows().EdgeOf(view_.frozenRows + 1);
  if (width > room.width() * 3 / 4) width = 0;
  if (height > room.height() * 3 / 4) height = 0;
  return {width, height};
}

/// Returns the area that scrolls in both directions.
QRect SheetView::BodyArea() {
  const QSize frozen = FrozenSize();
  return viewport()->rect().adjusted(headWidth_ + frozen.width(), headHeight_ + frozen.height(), 0, 0);
}

std::vector<SheetView::Pane> SheetView::Panes() {
  const QRect body = BodyArea();
  const QPoint still(headWidth_, headHeight_);
  const QPoint moved = still - QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
  std::vector<Pane> panes = {{body, moved}};
  const int width = body.left() - headWidth_, height = body.top() - headHeight_;
  if (height > 0)
    panes.push_back({QRect(body.left(), headHeight_, body.width(), height), {moved.x(), still.y()}});
  if (width > 0)
    panes.push_back({QRect(headWidth_, body.top(), width, body.height()), {still.x(), moved.y()}});
  if (width > 0 && height > 0) panes.push_back({QRect(still, QSize(width, height)), still});
  return panes;
}

/// Returns the extent of all contents, in pixels from the sheet's corner.
QSize SheetView::ContentSize() {
  int width = Columns().EdgeOf(used_.column2 + 1), height = Rows().EdgeOf(used_.row2 + 1);
  for (const ShownFrame& frame : frames_) {
    width = std::max(width, static_cast<int>(frame.place.right() * Scale()));
    height = std::max(height, static_cast<int>(frame.place.bottom() * Scale()));
  }
  return {width, height};
}

/// The range of a scroll bar covers the contents of the sheet, and half a window beyond the current position,
/// up to the end of the sheet.
void SheetView::UpdateScrollBars() {
  if (!unreadable_.isEmpty()) return;
  MeasureHeads();
  const QRect body = BodyArea();
  const QSize content = ContentSize(), frozen = FrozenSize();
  const auto update = [](QScrollBar& bar, int page, int wanted, int sheet) {
    bar.setPageStep(std::max(page, 1));
    if (bar.isSliderDown()) return;
    const int most = std::max(0, sheet - page);
    bar.setRange(0, std::clamp(std::max(wanted - page + kScrollStep, bar.value() + page / 2), 0, most));
  };
  update(*horizontalScrollBar(), body.width(), content.width() - frozen.width(),
         Columns().EdgeOf(limits::kColumns + 1) - frozen.width());
  update(*verticalScrollBar(), body.height(), content.height() - frozen.height(),
         Rows().EdgeOf(limits::kRows + 1) - frozen.height());
}

/// Scrolls until an area (in pixels from the sheet's corner) is visible, or its beginning if it is too large.
/// Rows come first, because row numbers with more digits leave less space for the columns.
void SheetView::ScrollTo(const QRect& place) {
  const QSize frozen = FrozenSize();
  const auto scroll = [](QScrollBar& bar, int first, int last, int page) {
    if (last < 0) return;  // The line is frozen.
    int value = bar.value();
    if (last - page + 1 > value) value = last - page + 1;
    value = std::max(0, std::min(value, first));
    bar.setMaximum(std::max(bar.maximum(), value));
    bar.setValue(value);
  };
  scroll(*verticalScrollBar(), place.top() - frozen.height(), place.bottom() - frozen.height(),
         BodyArea().height());
  scroll(*horizontalScrollBar(), place.left() - frozen.width(), place.right() - frozen.width(),
         BodyArea().width());
  UpdateScrollBars();
}

CellPlace SheetView::FirstOfMerged(const CellPlace& cell) {
  for (const CellRange& range : source_.MergedCells()) {
    if (range.Contains(cell)) return {range.row1, range.column1};
  }
  return cell;
}

void SheetView::SetActiveCell(const CellPlace& cell) {
  Guarded([&] {
    activeCell_ = {std::clamp(cell.row, 1, limits::kRows), std::clamp(cell.column, 1, limits::kColumns)};
    ScrollTo(PlaceOf(CellRange{activeCell_.row, activeCell_.column, activeCell_.row, activeCell_.column}));
  });
  viewport()->update();
  ReportActiveCell(*this);
  if (onActiveCell_) onActiveCell_();
}

QString SheetView::ActiveText() {
  QString text;
  Guarded([&] { text = qt::TextOf(source_.CellAt(activeCell_.row, activeCell_.column).text); });
  return text;
}

/// Returns the pane that shows the upper left corner of an area.
const SheetView::Pane* SheetView::PaneOf(const std::vector<Pane>& panes, const QRect& place) const {
  const int right = panes.front().area.left() - headWidth_, bottom = panes.front().area.top() - headHeight_;
  const bool isLeft = place.left() < right, isAbove = place.top() < bottom;
  for (const Pane& pane : panes) {
    const bool frozenLeft = pane.area.left() == headWidth_ && right > 0;
    const bool frozenTop = pane.area.top() == headHeight_ && bottom > 0;
    if (frozenLeft == isLeft && frozenTop == isAbove) return &pane;
  }
  return &panes.front();
}

QRect SheetView::CellArea(const CellPlace& cell) {
  const QRect place = PlaceOf(CellRange{cell.row, cell.column, cell.row, cell.column});
  const auto panes = Panes();
  return place.translated(PaneOf(panes, place)->origin);
}

QRect SheetView::PlaceOf(const ShownFrame& frame) const {
  const auto pixel = [&](double points) { return static_cast<int>(std::lround(points * Scale())); };
  const QPoint from(pixel(frame.place.left()), pixel(frame.place.top()));
  const QPoint to(pixel(frame.place.right()), pixel(frame.place.bottom()));
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

QRect SheetView::PlaceOf(const CellRange& cells) {
  const SheetGrid rows = Rows(), columns = Columns();
  const int left = columns.EdgeOf(cells.column1), top = rows.EdgeOf(cells.row1);
  return {left, top, columns.EdgeOf(cells.column2 + 1) - left, rows.EdgeOf(cells.row2 + 1) - top};
}

QRect SheetView::FrameArea(const ShownFrame& frame) {
  const QRect place = PlaceOf(frame);
  const auto panes = Panes();
  return place.translated(PaneOf(panes, place)->origin);
}

bool SheetView::Reveal(const std::string& alternativeText) {
  const std::size_t found = FindChart(frames_, alternativeText);
  if (found == frames_.size()) return false;
  Guarded([&] { ScrollTo(PlaceOf(frames_[found])); });
  return true;
}

std::optional<CellPlace> SheetView::CellAtPoint(const QPoint& point) {
  for (const Pane& pane : Panes()) {
    if (!pane.area.contains(point)) continue;
    const QPoint place = point - pane.origin;
    return FirstOfMerged({Rows().NumberAt(place.y()), Columns().NumberAt(place.x())});
  }
  return std::nullopt;
}

void SheetView::resizeEvent(QResizeEvent*) {
  Guarded([&] { UpdateScrollBars(); });
}

void SheetView::scrollContentsBy(int, int) {
  Guarded([&] { UpdateScrollBars(); });
  viewport()->update();
}

void SheetView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
    Guarded([&] { UpdateScrollBars(); });
}

bool SheetView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) viewport()->update();
  return QAbstractScrollArea::viewportEvent(event);
}

void SheetView::mousePressEvent(QMouseEvent* event) {
  Guarded([&] {
    if (const auto cell = CellAtPoint(event->position().toPoint())) SetActiveCell(*cell);
  });
}

void SheetView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return QAbstractScrollArea::wheelEvent(event);
  if (const int turned = event->angleDelta().y(); turned != 0) StepZoom(turned > 0 ? 1 : -1);
  event->accept();
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  bool taken = false;
  Guarded([&] { taken = MoveByKey(*event); });
  // Keys that move nothing go to the window, not to the scroll bars.
  event->setAccepted(taken);
}

bool SheetView::MoveByKey(QKeyEvent& event) {
  const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
  const auto arrow = [&](int rows, int columns) {
    SetActiveCell(control ? Jump(rows, columns) : Step(rows, columns));
  };
  switch (event.key()) {
    case Qt::Key_Up:
      arrow(-1, 0);
      return true;
    case Qt::Key_Down:
      arrow(1, 0);
      return true;
    case Qt::Key_Left:
      arrow(0, -1);
      return true;
    case Qt::Key_Right:
      arrow(0, 1);
      return true;
    case Qt::Key_Home:
      SetActiveCell(control ? CellPlace{1, 1} : CellPlace{activeCell_.row, 1});
      return true;
    case Qt::Key_End:
      if (control) SetActiveCell({used_.row2, used_.column2});
      return control;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      if (!control) TurnPage(event.key() == Qt::Key_PageDown ? 1 : -1);
      return !control;  // With Ctrl the key selects another sheet.
    case Qt::Key_0:
      if (control) SetZoom(1);
      return control;
    case Qt::Key_Plus:
    case Qt::Key_Minus:
      if (control) StepZoom(event.key() == Qt::Key_Plus ? 1 : -1);
      return control;
    default:
      return false;
  }
}

CellPlace SheetView::Step(int rows, int columns) {
  CellPlace cell = activeCell_;
  // Leave merged cells in one step.
  for (const CellRange& range : source_.MergedCells()) {
    if (cell != CellPlace{range.row1, range.column1}) continue;
    if (rows > 0) cell.row = range.row2;
    if (columns > 0) cell.column = range.column2;
  }
  if (rows != 0) cell.row = Rows().NextShown(cell.row, rows);
  if (columns != 0) cell.column = Columns().NextShown(cell.column, columns);
  return FirstOfMerged(cell);
}

/// Moves to the end of a block of cells with contents, or over empty cells to the next block.
CellPlace SheetView::Jump(int rows, int columns) {
  const auto inside = [](const CellPlace& cell) {
    return cell.row >= 1 && cell.row <= limits::kRows && cell.column >= 1 && cell.column <= limits::kColumns;
  };
  const auto next = [&](const CellPlace& cell) { return CellPlace{cell.row + rows, cell.column + columns}; };
  const auto holds = [&](const CellPlace& cell) {
    return inside(cell) && !source_.IsEmptyAt(cell.row, cell.column);
  };
  CellPlace at = activeCell_;
  if (holds(at) && holds(next(at))) {
    while (holds(next(at))) at = next(at);
    return at;
  }
  // All cells beyond the used range are empty.
  const bool forward = rows + columns > 0;
  while (inside(next(at)) && !holds(next(at))) {
    at = next(at);
    if (forward && rows != 0 && at.row > used_.row2) return {limits::kRows, at.column};
    if (forward && columns != 0 && at.column > used_.column2) return {at.row, limits::kColumns};
  }
  return inside(next(at)) ? next(at) : at;
}

void SheetView::TurnPage(int direction) {
  const SheetGrid rows = Rows();
  const int page = std::max(1, BodyArea().height() - rows.SizeOf(activeCell_.row));
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + direction * page);
  const int top = std::max(0, rows.EdgeOf(activeCell_.row) + direction * page);
  SetActiveCell(FirstOfMerged({rows.NumberAt(top), activeCell_.column}));
}

}  // namespace plotsmith::qtbook
