#include "qt/book/FramePainter.h"

#include <QtGui/QFontMetrics>
#include <algorithm>
#include <array>
#include <utility>

#include "host/excel/ChartTitle.h"
#include "host/excel/Constants.h"
#include "qt/Texts.h"
#include "qt/book/ChartTypeNames.h"
#include "qt/book/Colors.h"
#include "runtime/RuntimeError.h"

namespace plotsmith::qtbook {
namespace {

/// The maximum width and height of a picture. Larger ones aren't worth their memory.
constexpr int kMostPixels = 4096;
/// The maximum memory for pictures, in KiB.
constexpr int kMostPictures = 96 * 1024;
constexpr int kMargin = 6;

/// Paints text in the middle of a frame, wrapped at the frame's width.
void PaintCaption(QPainter& painter, const ChartCaption& caption, const QRect& area, const QPalette& palette,
                  const QFont& font) {
  const QRect inside = area.adjusted(kMargin, kMargin, -kMargin, -kMargin);
  if (inside.height() < QFontMetrics(font).height() || inside.width() < kMargin) return;
  QFont bold = font;
  bold.setBold(true);
  const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  const int titleHeight = QFontMetrics(bold).boundingRect(inside, flags, caption.title).height();
  const int typeHeight = QFontMetrics(font).boundingRect(inside, flags, caption.type).height();
  const int top = inside.top() + std::max(0, (inside.height() - titleHeight - typeHeight) / 2);
  painter.setFont(bold);
  painter.setPen(palette.color(QPalette::Text));
  painter.drawText(QRect(inside.left(), top, inside.width(), titleHeight), flags, caption.title);
  painter.setFont(font);
  painter.setPen(TextShade(palette, 0.6));
  painter.drawText(QRect(inside.left(), top + titleHeight, inside.width(), typeHeight), flags, caption.type);
}

void PaintOutline(QPainter& painter, const QRect& area, const QPen& pen) {
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(area.adjusted(0, 0, -1, -1));
}

/// Paints a shape that isn't a chart: its outline and its text.
void PaintOther(QPainter& painter, const ShownFrame& frame, const QRect& area, const QPalette& palette,
                const QFont& font) {
  const QColor line = TextShade(palette, 0.35);
  PaintOutline(painter, area, QPen(line, 1, Qt::DashLine));
  painter.setFont(font);
  painter.setPen(TextShade(palette, 0.7));
  painter.drawText(area.adjusted(kMargin, kMargin / 2, -kMargin, -kMargin / 2),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, frame.label);
}

}  // namespace

ChartCaption CaptionOf(const ShownFrame& frame) {
  ChartCaption caption{frame.label, {}};
  try {
    const excel::Ref<excel::Chart> chart = frame.chart();
    if (!chart) return caption;
    if (chart->HasTitle()) {
      const QString title = qt::TextOf(chart->ChartTitle()->Text()).trimmed();
      if (!title.isEmpty()) caption.title = title;
    }
    caption.type = ChartTypeName(chart->ChartType());
  } catch (const runtime::RuntimeError&) {
    // Use the texts that were read so far.
  }
  return caption;
}

FramePainter::FramePainter() : pictures_(kMostPictures) {}

void FramePainter::SetChartPainter(ChartPainter painter) {
  chartPainter_ = std::move(painter);
  DiscardPictures();
}

void FramePainter::DiscardPictures() {
  pictures_.clear();
  captions_.clear();
}

const ChartCaption& FramePainter::KeptCaption(std::size_t index, const ShownFrame& frame) {
  const auto found = captions_.find(index);
  return found != captions_.end() ? found->second : captions_.emplace(index, CaptionOf(frame)).first->second;
}

QPixmap FramePainter::DrawPicture(const ShownFrame& frame, const QSize& size, double ratio) const {
  try {
    const excel::Ref<excel::Chart> chart = frame.chart();
    if (!chart) return {};
    QPixmap pixmap(size.boundedTo(QSize(kMostPixels, kMostPixels)));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF area(QPointF(0, 0), pixmap.deviceIndependentSize());
    return chartPainter_(painter, chart, area) ? pixmap : QPixmap();
  } catch (const runtime::RuntimeError&) {
    return {};  // A chart that can't be read is shown as a frame.
  }
}

QPixmap FramePainter::PictureOf(std::size_t index, const ShownFrame& frame, const QSize& size, double ratio) {
  if (!chartPainter_) return {};
  const Picture* kept = pictures_.object(index);
  if (kept != nullptr && kept->size == size) return kept->pixmap;
  const QPixmap drawn = DrawPicture(frame, size, ratio);
  pictures_.insert(index, new Picture{drawn, size}, 1 + drawn.width() * drawn.height() / 256);
  return drawn;
}

void FramePainter::Paint(QPainter& painter, std::size_t index, const ShownFrame& frame, const QRect& area,
                         const QPalette& palette, const QFont& font) {
  if (area.width() < 1 || area.height() < 1) return;
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  if (!frame.isChart) {
    PaintOther(painter, frame, area, palette, font);
  } else {
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size = (QSizeF(area.size()) * ratio).toSize();
    const QPixmap picture = PictureOf(index, frame, size, ratio);
    if (!picture.isNull()) {
      painter.drawPixmap(area, picture);
    } else {
      painter.fillRect(area, palette.color(QPalette::Base));
      PaintOutline(painter, area, TextShade(palette, 0.35));
      PaintCaption(painter, KeptCaption(index, frame), area, palette, font);
    }
  }
  painter.restore();
}

}  // namespace plotsmith::qtbook
