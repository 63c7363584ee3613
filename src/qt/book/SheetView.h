#pragma once

#include <QtWidgets/QAbstractScrollArea>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qt/book/CellPainter.h"
#include "qt/book/FramePainter.h"
#include "qt/book/SheetGrid.h"
#include "qt/book/SheetPage.h"
#include "qt/book/SheetSource.h"
#include "runtime/RuntimeError.h"

namespace plotsmith::qtbook {

/// A window that shows a worksheet, read only: cells, shapes, and row and column headings. It reads the
/// visible cells from the host and keeps none, so the size of the sheet doesn't matter.
///
/// The sheet in the host determines the initial top left cell, the frozen rows and columns, and the initial
/// active cell. The user can then scroll, and move the active cell of this window, without changing the
/// workbook.
class SheetView : public QAbstractScrollArea, public SheetPage {
 public:
  /// Makes a view of a worksheet. `book` must outlive it.
  SheetView(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet, QWidget* parent = nullptr);

  QWidget& Widget() override { return *this; }
  SheetView* Cells() override { return this; }
  void SetChartPainter(const ChartPainter& painter) override;
  /// Updates the view. If a cell was activated in the host, it becomes the active cell here, and the view
  /// scrolls to it.
  void Refresh() override;

  /// The active cell of this window. Rows and columns count from 1.
  xlsx::CellPlace ActiveCell() const { return activeCell_; }
  /// Sets the active cell and scrolls until it is visible.
  void SetActiveCell(const xlsx::CellPlace& cell);
  /// Sets a function that is called when the active cell changes.
  void OnActiveCell(std::function<void()> call) { onActiveCell_ = std::move(call); }
  /// Returns the text of the active cell. It is empty if the sheet can't be read.
  QString ActiveText();

  /// Returns the position of a cell or of a shape in the viewport, in pixels. It may be outside the viewport.
  ///@{
  QRect CellArea(const xlsx::CellPlace& cell);
  QRect FrameArea(const ShownFrame& frame);
  ///@}
  /// The shapes on the sheet from back to front.
  const std::vector<ShownFrame>& Frames() const { return frames_; }
  /// Scrolls to the chart with this alternative text. Returns false if the sheet has no such chart.
  bool Reveal(const std::string& alternativeText);

  /// The zoom factor, from 0.5 to 2. 1 is 96 dots per inch.
  ///@{
  double Zoom() const { return zoom_; }
  void SetZoom(double zoom);
  ///@}

  /// The reader of the sheet.
  SheetSource& Source() { return source_; }

 protected:
  /// Paint the cells, scroll them, and handle the keyboard and the mouse.
  ///@{
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  ///@}

 private:
  /// A part of the viewport that scrolls as a unit: all cells, or up to four parts with frozen rows and
  /// columns.
  struct Pane {
    QRect area;
    QPoint origin;  ///< The position of the sheet's corner in the viewport.
  };
  /// The visible cells of a pane and their contents.
  struct PaneCells {
    std::vector<Line> rows, columns;
    std::vector<xlsx::CellContents> cells;  ///< The cells, row by row.
    std::vector<xlsx::CellRange> merged;

    const xlsx::CellContents& At(std::size_t row, std::size_t column) const {
      return cells[row * columns.size() + column];
    }
    bool IsMerged(std::int32_t row, std::int32_t column) const;
    bool IsFree(std::size_t row, std::size_t column) const;
  };

  SheetGrid Rows();
  SheetGrid Columns();
  double Scale() const;
  /// Calls a function that reads the sheet. After an error, the view shows the error instead of the sheet.
  template <class Read>
  void Guarded(Read&& read) {
    if (!unreadable_.isEmpty()) return;
    try {
      read();
    } catch (const runtime::RuntimeError& e) {
      ShowFailure(e);
    }
  }
  void ShowFailure(const runtime::RuntimeError& error);

  // the layout of the viewport
  void MeasureHeads();
  QSize FrozenSize();
  QRect BodyArea();
  std::vector<Pane> Panes();
  /// Returns the position of a shape in pixels from the sheet's corner.
  ///@{
  QRect PlaceOf(const ShownFrame& frame) const;
  QRect PlaceOf(const xlsx::CellRange& cells);
  ///@}
  const Pane* PaneOf(const std::vector<Pane>& panes, const QRect& place) const;
  QSize ContentSize();
  void UpdateScrollBars();
  void ScrollTo(const QRect& place);
  std::optional<xlsx::CellPlace> CellAtPoint(const QPoint& point);

  // painting
  PaneCells CellsOf(const Pane& pane);
  void PaintPane(QPainter& painter, const Pane& pane, CellPainter& cellPainter);
  void PaintGridLines(QPainter& painter, const Pane& pane, const PaneCells& shown);
  void PaintFills(QPainter& painter, const Pane& pane, const PaneCells& shown, CellPainter& cellPainter);
  void PaintTexts(QPainter& painter, const Pane& pane, const PaneCells& shown, CellPainter& cellPainter);
  void PaintText(QPainter& painter, const Pane& pane, const PaneCells& shown, std::size_t row,
                 std::size_t column, CellPainter& cellPainter);
  void PaintTextFromOutside(QPainter& painter, const Pane& pane, const PaneCells& shown, std::size_t row,
                            CellPainter& cellPainter);
  void PaintMerged(QPainter& painter, const Pane& pane, const PaneCells& shown, CellPainter& cellPainter);
  void PaintBorders(QPainter& painter, const Pane& pane, const PaneCells& shown);
  void PaintFrames(QPainter& painter, const Pane& pane);
  void PaintActiveCell(QPainter& painter, const Pane& pane);
  void PaintHeads(QPainter& painter);
  void PaintHead(QPainter& painter, const QRect& area, const QString& text, bool active);
  void PaintFreezeLines(QPainter& painter);

  void StepZoom(int steps);

  // keys
  bool MoveByKey(QKeyEvent& event);
  xlsx::CellPlace Step(int rows, int columns);
  xlsx::CellPlace Jump(int rows, int columns);
  void TurnPage(int direction);
  /// Returns the cell at a position; for merged cells, the first one.
  xlsx::CellPlace FirstOfMerged(const xlsx::CellPlace& cell);

  SheetSource source_;
  FramePainter framePainter_;
  std::function<void()> onActiveCell_;
  std::vector<ShownFrame> frames_;
  xlsx::SheetView view_;  ///< The view settings in the host.
  xlsx::CellRange used_;
  xlsx::CellPlace activeCell_{1, 1};
  QString unreadable_;  ///< The error that prevents showing the sheet.
  double zoom_ = 1;
  int headWidth_ = 0, headHeight_ = 0;
};

}  // namespace plotsmith::qtbook
