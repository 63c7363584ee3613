#pragma once

#include <QtCore/QRect>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <cstdint>
#include <map>

#include "qt/book/SheetSource.h"

namespace plotsmith::qtbook {

/// Paints the contents of cells. Fonts are scaled so that a digit isn't wider than the column widths assume,
/// because the workbook's font may not be installed.
class CellPainter {
 public:
  /// Makes a painter. `scale` is the number of window pixels for a pixel at 96 dots per inch.
  CellPainter(SheetSource& source, const QPalette& palette, double scale);

  /// Returns the Normal font of the workbook.
  QFont NormalFont() const;
  /// Returns the background colour of a cell: the colour of its fill, or the colour of the window.
  QColor Background(const xlsx::CellContents& cell);
  /// Returns true if the cell has a fill.
  bool HasFill(const xlsx::CellContents& cell) { return source_.LookOf(cell.style).fillColor.has_value(); }

  /// Returns the horizontal position of a cell's text.
  xlsx::TextSide SideOf(const xlsx::CellContents& cell);
  /// Returns true if a long text may extend over empty adjacent cells.
  bool MaySpread(const xlsx::CellContents& cell);
  /// Returns the width of the text with its margins, in pixels.
  int WidthOf(const xlsx::CellContents& cell);
  /// Returns the text that fits into a cell of this width. A number that doesn't fit is shortened to fewer
  /// decimals, or replaced by "####".
  QString FittedText(const xlsx::CellContents& cell, int width);
  /// Paints the text of a cell. `area` is the cell, including empty adjacent cells under a long text.
  void Paint(QPainter& painter, const xlsx::CellContents& cell, const QRect& area);

 private:
  struct Face {
    QFont font;
    QFontMetrics metrics;
  };
  const Face& FaceOf(std::uint32_t style);
  QFont FontOf(const xlsx::CellLook& look) const;
  int Padding() const;
  int IndentOf(const xlsx::CellContents& cell);

  SheetSource& source_;
  QPalette palette_;
  double scale_;
  double shrink_;  ///< The factor of font sizes.
  std::map<std::uint32_t, Face> faces_;
};

}  // namespace plotsmith::qtbook
