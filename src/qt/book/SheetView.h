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

/// A worksheet in a window, to be looked at: cells, what is drawn over them, the heads of rows and columns.
/// It asks the host for the cells that it paints and keeps none, so that the size of a sheet costs nothing.
///
/// The host's sheet has a top left cell, frozen rows and columns, and an active cell; from there on the user
/// scrolls and moves the active cell of this window. Neither changes the workbook.
class SheetView : public QAbstractScrollArea, public SheetPage {
 public:
  SheetView(xlsx::Workbook& book, std::weak_ptr<xlsx::SheetEntry> sheet, QWidget* parent = nullptr);

  QWidget& Widget() override { return *this; }
  SheetView* Cells() override { return this; }
  void SetChartPainter(const ChartPainter& painter) override;
  /// A cell that was made the active one in the host meanwhile becomes the active one here, and is scrolled
  /// to.
  void Refresh() override;

  /// In this window; rows and columns from 1.
  xlsx::CellPlace ActiveCell() const { return activeCell_; }
  /// Scrolls as far as it takes to see the cell.
  void SetActiveCell(const xlsx::CellPlace& cell);
  /// Called after each move of the active cell.
  void OnActiveCell(std::function<void()> call) { onActiveCell_ = std::move(call); }
  /// What the active cell shows; empty if the sheet can't be read.
  QString ActiveText();

  /// Where a cell, or what is drawn on the sheet, lies in the viewport, in pixels; it may lie outside.
  ///@{
  QRect CellArea(const xlsx::CellPlace& cell);
  QRect FrameArea(const ShownFrame& frame);
  ///@}
  const std::vector<ShownFrame>& Frames() const { return frames_; }
  /// Scrolls to the chart of the alternative text. Returns false if the sheet has none.
  bool Reveal(const std::string& alternativeText);

  /// 1 is 96 dots an inch; from 0.5 to 2.
  ///@{
  double Zoom() const { return zoom_; }
  void SetZoom(double zoom);
  ///@}

  SheetSource& Source() { return source_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  /// A part of the viewport that scrolls as one: all cells, or with frozen rows and columns up to four.
  struct Pane {
    QRect area;
    QPoint origin;  ///< where the sheet's corner lies, in the viewport
  };
  /// The cells that a pane shows, and what they hold.
  struct PaneCells {
    std::vector<Line> rows, columns;
    std::vector<ShownCell> cells;  ///< row by row
    std::vector<xlsx::CellRange> merged;

    const ShownCell& At(std::size_t row, std::size_t column) const {
      return cells[row * columns.size() + column];
    }
    bool IsMerged(std::int32_t row, std::int32_t column) const;
    bool IsFree(std::size_t row, std::size_t column) const;
  };

  SheetGrid Rows();
  SheetGrid Columns();
  double Scale() const;
  /// Runs what reads the sheet; what goes wrong is shown instead of the sheet from then on.
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
  /// In pixels from the sheet's corner.
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
  void PaintFillings(QPainter& painter, const Pane& pane, const PaneCells& shown, CellPainter& cellPainter);
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
  /// The cell that stands for a place: the first of cells that are shown as one.
  xlsx::CellPlace FirstOfMerged(const xlsx::CellPlace& cell);

  SheetSource source_;
  FramePainter framePainter_;
  std::function<void()> onActiveCell_;
  std::vector<ShownFrame> frames_;
  xlsx::SheetView view_;  ///< as the host has it
  xlsx::CellRange used_;
  xlsx::CellPlace activeCell_{1, 1};
  QString unreadable_;  ///< why the sheet can't be shown
  double zoom_ = 1;
  int headWidth_ = 0, headHeight_ = 0;
};

}  // namespace plotsmith::qtbook
