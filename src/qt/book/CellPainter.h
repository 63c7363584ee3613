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
  QColor Background(const ShownCell& cell);
  /// Returns true if the cell has a fill.
  bool HasFill(const ShownCell& cell) { return source_.LookOf(cell.style).fillColor.has_value(); }

  /// Returns the horizontal alignment of a cell's text: Qt::AlignLeft, AlignRight or AlignHCenter.
  Qt::Alignment SideOf(const ShownCell& cell);
  /// Returns true if a long text may extend over empty adjacent cells.
  bool MaySpread(const ShownCell& cell);
  /// Returns the width of the text with its margins, in pixels.
  int WidthOf(const ShownCell& cell);
  /// Returns the text that fits into a cell of this width. A number that doesn't fit is shortened to fewer
  /// decimals, or replaced by "####".
  QString FittedText(const ShownCell& cell, int width);
  /// Paints the text of a cell. `area` is the cell, including empty adjacent cells under a long text.
  void Paint(QPainter& painter, const ShownCell& cell, const QRect& area);

 private:
  struct Face {
    QFont font;
    QFontMetrics metrics;
  };
  const Face& FaceOf(std::uint32_t style);
  QFont FontOf(const xlsx::CellLook& look) const;
  int Padding() const;
  int IndentOf(const ShownCell& cell);

  SheetSource& source_;
  QPalette palette_;
  double scale_;
  double shrink_;  ///< The factor of font sizes.
  std::map<std::uint32_t, Face> faces_;
};

/// Returns a number in the General format with as many digits as `fits` accepts. `text` has all digits. The
/// result is empty if not even the integer part fits.
QString ShorterNumber(double number, const QString& text, const std::function<bool(const QString&)>& fits);

}  // namespace plotsmith::qtbook
