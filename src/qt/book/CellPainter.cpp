#include "qt/book/CellPainter.h"

#include <QtGui/QFontMetrics>
#include <algorithm>
#include <cmath>

#include "qt/book/Colors.h"
#include "qt/book/Texts.h"

namespace plotsmith::qtbook {
namespace {

using Kind = excel::CellValue::Kind;
using xlsx::HorizontalAlignment;
using xlsx::VerticalAlignment;

constexpr double kPixelsPerPoint = 96.0 / 72;
constexpr int kBlanksPerIndent = 3;

bool IsNumber(const ShownCell& cell) { return cell.kind == Kind::kNumber || cell.kind == Kind::kDate; }

Qt::Alignment UsualSide(Kind kind) {
  switch (kind) {
    case Kind::kNumber:
    case Kind::kDate:
      return Qt::AlignRight;
    case Kind::kBoolean:
    case Kind::kError:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

Qt::Alignment HeightOf(VerticalAlignment vertical) {
  if (vertical == VerticalAlignment::kTop) return Qt::AlignTop;
  return vertical == VerticalAlignment::kCenter ? Qt::AlignVCenter : Qt::AlignBottom;
}

}  // namespace

QString ShorterNumber(double number, const QString& text, const std::function<bool(const QString&)>& fits) {
  if (text.contains(QLatin1Char('E'))) return {};  // A number with an exponent can hardly become shorter.
  const auto point = text.indexOf(QLatin1Char('.'));
  const int decimals = point < 0 ? 0 : static_cast<int>(text.size() - point - 1);
  for (int kept = decimals - 1; kept >= 0; --kept) {
    const QString shorter = QString::number(number, 'f', kept);
    if (fits(shorter)) return shorter;
  }
  return {};
}

CellPainter::CellPainter(SheetSource& source, const QPalette& palette, double scale)
    : source_(source), palette_(palette), scale_(scale), shrink_(1) {
  const double digit = QFontMetricsF(NormalFont()).horizontalAdvance(QLatin1Char('0'));
  shrink_ = std::min(1.0, source_.DigitWidth() * scale_ / std::max(digit, 1.0));
}

QFont CellPainter::NormalFont() const { return FontOf(source_.LookOf(0)); }

QFont CellPainter::FontOf(const xlsx::CellLook& look) const {
  QFont font(ToQString(look.font));
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

QColor CellPainter::Background(const ShownCell& cell) {
  const auto& fill = source_.LookOf(cell.style).fillColor;
  // Workbooks assume a white background, so white becomes the window's background colour.
  constexpr std::int32_t kWhite = 0xFFFFFF;
  return fill && *fill != kWhite ? FromExcel(*fill) : palette_.color(QPalette::Base);
}

Qt::Alignment CellPainter::SideOf(const ShownCell& cell) {
  switch (source_.LookOf(cell.style).horizontal) {
    case HorizontalAlignment::kLeft:
    case HorizontalAlignment::kFill:
      return Qt::AlignLeft;
    case HorizontalAlignment::kRight:
      return Qt::AlignRight;
    case HorizontalAlignment::kCenter:
    case HorizontalAlignment::kCenterAcross:
      return Qt::AlignHCenter;
    case HorizontalAlignment::kGeneral:
      break;
  }
  return UsualSide(cell.kind);
}

bool CellPainter::MaySpread(const ShownCell& cell) {
  const xlsx::CellLook& look = source_.LookOf(cell.style);
  return cell.kind == Kind::kText && !look.wrap && look.horizontal != HorizontalAlignment::kFill;
}

int CellPainter::Padding() const { return std::max(1, static_cast<int>(std::lround(2 * scale_))); }

int CellPainter::IndentOf(const ShownCell& cell) {
  const int blank = FaceOf(cell.style).metrics.horizontalAdvance(QLatin1Char(' '));
  return source_.LookOf(cell.style).indent * kBlanksPerIndent * blank;
}

int CellPainter::WidthOf(const ShownCell& cell) {
  return FaceOf(cell.style).metrics.horizontalAdvance(cell.text) + IndentOf(cell) + 2 * Padding() + 1;
}

QString CellPainter::FittedText(const ShownCell& cell, int width) {
  if (!IsNumber(cell)) return cell.text;
  const QFontMetrics& metrics = FaceOf(cell.style).metrics;
  const int room = width - IndentOf(cell) - Padding() - 1;
  const auto fits = [&](const QString& text) { return metrics.horizontalAdvance(text) <= room; };
  if (fits(cell.text)) return cell.text;
  const QString shorter = cell.general ? ShorterNumber(cell.number, cell.text, fits) : QString();
  if (!shorter.isEmpty()) return shorter;
  const int marks = room / std::max(1, metrics.horizontalAdvance(QLatin1Char('#')));
  return QString(std::max(marks, 1), QLatin1Char('#'));
}

void CellPainter::Paint(QPainter& painter, const ShownCell& cell, const QRect& area) {
  if (cell.text.isEmpty()) return;
  const xlsx::CellLook& look = source_.LookOf(cell.style);
  const Face& face = FaceOf(cell.style);
  const Qt::Alignment side = SideOf(cell);
  // The last pixel at the right and bottom is the gridline.
  QRect inside = area.adjusted(Padding(), 0, -Padding() - 1, -1);
  if (side == Qt::AlignLeft) inside.setLeft(inside.left() + IndentOf(cell));
  if (side == Qt::AlignRight) inside.setRight(inside.right() - IndentOf(cell));

  QString text = FittedText(cell, area.width());
  int flags = static_cast<int>(side | HeightOf(look.vertical)) | Qt::TextDontClip;
  if (look.wrap && !IsNumber(cell)) {
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
