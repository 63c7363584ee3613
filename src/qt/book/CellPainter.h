#pragma once

#include <QtCore/QRect>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <cstdint>
#include <map>

#include "qt/book/SheetSource.h"

namespace plotsmith::qtbook {

/// Paints the contents of cells. Fonts are made so large that a digit is no wider than the sheet's columns
/// count on, since the workbook's own font may be missing here.
class CellPainter {
 public:
  /// `scale` is pixels of the window for a pixel at 96 dots an inch.
  CellPainter(SheetSource& source, const QPalette& palette, double scale);

  /// The Normal font of the workbook.
  QFont NormalFont() const;
  /// The colour behind a cell: its filling, or that of the window.
  QColor Background(const ShownCell& cell);
  bool HasFilling(const ShownCell& cell) { return source_.LookOf(cell.style).fillColor.has_value(); }

  /// Where a cell's text goes, Qt::AlignLeft, AlignRight or AlignHCenter.
  Qt::Alignment SideOf(const ShownCell& cell);
  /// Whether a text that is too long for the cell goes on over empty ones beside it.
  bool MaySpread(const ShownCell& cell);
  /// How wide the text is, with the space to the edges of the cell, in pixels.
  int WidthOf(const ShownCell& cell);
  /// The text that a cell of this width shows: a number that doesn't fit has fewer decimals, or is "####".
  QString FittedText(const ShownCell& cell, int width);
  /// Paints the text of a cell in `area`: the cell, or with the empty ones beside it that the text goes over.
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
  double shrink_;  ///< of font sizes
  std::map<std::uint32_t, Face> faces_;
};

/// A number in the General format with as many digits as `fits` accepts, from `text`, which has all of them;
/// empty if not even the whole ones are accepted.
QString ShorterNumber(double number, const QString& text, const std::function<bool(const QString&)>& fits);

}  // namespace plotsmith::qtbook
