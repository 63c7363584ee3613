#include "qt/book/CellPainter.h"

#include <QtGui/QFontMetrics>
#include <algorithm>
#include <cmath>

#include "qt/Texts.h"
#include "qt/book/Colors.h"

namespace plotsmith::qtbook {
namespace {

using xlsx::CellContents;
using xlsx::TextSide;
using xlsx::VerticalAlignment;

constexpr double kPixelsPerPoint = 96.0 / 72;

Qt::Alignment FlagOf(TextSide side) {
  if (side == TextSide::kLeft) return Qt::AlignLeft;
  return side == TextSide::kRight ? Qt::AlignRight : Qt::AlignHCenter;
}

Qt::Alignment HeightOf(VerticalAlignment vertical) {
  if (vertical == VerticalAlignment::kTop) return Qt::AlignTop;
  return vertical == VerticalAlignment::kCenter ? Qt::AlignVCenter : Qt::AlignBottom;
}

}  // namespace

CellPainter::CellPainter(SheetSource& source, const QPalette& palette, double scale)
    : source_(source), palette_(palette), scale_(scale), shrink_(1) {
  const double digit = QFontMetricsF(NormalFont()).horizontalAdvance(QLatin1Char('0'));
  shrink_ = std::min(1.0, source_.DigitWidth() * scale_ / std::max(digit, 1.0));
}

QFont CellPainter::NormalFont() const { return FontOf(source_.LookOf(0)); }

QFont CellPainter::FontOf(const xlsx::CellLook& look) const {
  QFont font(qt::TextOf(look.font));
  font.setPixelSize(
      std::max(1, static_cast<int>(std::floor(look.size * kPixelsPerPoint * scale_ * shrink_ + 0.01))));
  font.setBold(look.bold);
  font.setItalic(look.italic);
  font.setUnderline(look.underline);
  font.setStrikeOut(look.strike);
  return font;
}

const CellPainter::Face& CellPainter::FaceOf(std::uint32_t style) {
  const auto found = faces_.find(style);
  if (found != faces_.end()) return found->second;
  const QFont font = FontOf(source_.LookOf(style));
  return faces_.emplace(style, Face{font, QFontMetrics(font)}).first->second;
}

QColor CellPainter::Background(const CellContents& cell) {
  const auto& fill = source_.LookOf(cell.style).fillColor;
  // Workbooks assume a white background, so white becomes the window's background colour.
  constexpr std::int32_t kWhite = 0xFFFFFF;
  return fill && *fill != kWhite ? FromExcel(*fill) : palette_.color(QPalette::Base);
}

TextSide CellPainter::SideOf(const CellContents& cell) {
  return xlsx::SideOf(cell, source_.LookOf(cell.style));
}

bool CellPainter::MaySpread(const CellContents& cell) {
  return xlsx::MaySpread(cell, source_.LookOf(cell.style));
}

int CellPainter::Padding() const { return std::max(1, static_cast<int>(std::lround(2 * scale_))); }

int CellPainter::IndentOf(const CellContents& cell) {
  const int blank = FaceOf(cell.style).metrics.horizontalAdvance(QLatin1Char(' '));
  return source_.LookOf(cell.style).indent * xlsx::kBlanksPerIndent * blank;
}

int CellPainter::WidthOf(const CellContents& cell) {
  return FaceOf(cell.style).metrics.horizontalAdvance(qt::TextOf(cell.text)) + IndentOf(cell) +
         2 * Padding() + 1;
}

QString CellPainter::FittedText(const CellContents& cell, int width) {
  if (!cell.IsNumber()) return qt::TextOf(cell.text);
  const QFontMetrics& metrics = FaceOf(cell.style).metrics;
  const int room = width - IndentOf(cell) - Padding() - 1;
  const auto widthOf = [&](std::string_view text) { return metrics.horizontalAdvance(qt::TextOf(text)); };
  return qt::TextOf(xlsx::FittedNumber(cell, room, widthOf));
}

void CellPainter::Paint(QPainter& painter, const CellContents& cell, const QRect& area) {
  if (cell.text.empty()) return;
  const xlsx::CellLook& look = source_.LookOf(cell.style);
  const Face& face = FaceOf(cell.style);
  const TextSide side = SideOf(cell);
  // The last pixel at the right and bottom is the gridline.
  QRect inside = area.adjusted(Padding(), 0, -Padding() - 1, -1);
  if (side == TextSide::kLeft) inside.setLeft(inside.left() + IndentOf(cell));
  if (side == TextSide::kRight) inside.setRight(inside.right() - IndentOf(cell));

  QString text = FittedText(cell, area.width());
  int flags = static_cast<int>(FlagOf(side) | HeightOf(look.vertical)) | Qt::TextDontClip;
  if (look.wrap && !cell.IsNumber()) {
    flags |= Qt::TextWordWrap;
  } else {
    // Line breaks are shown only in cells with wrapped text.
    text.remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    flags |= Qt::TextSingleLine;
  }
  const QColor wanted = look.textColor ? FromExcel(*look.textColor) : palette_.color(QPalette::Text);
  painter.setFont(face.font);
  painter.setPen(Readable(wanted, Background(cell), palette_));
  const bool sticksOut = look.wrap || face.metrics.horizontalAdvance(text) > inside.width() ||
                         face.metrics.height() > inside.height();
  if (sticksOut) {
    painter.save();
    painter.setClipRect(area.adjusted(0, 0, -1, -1), Qt::IntersectClip);
  }
  painter.drawText(inside, flags, text);
  if (sticksOut) painter.restore();
}

}  // namespace plotsmith::qtbook
