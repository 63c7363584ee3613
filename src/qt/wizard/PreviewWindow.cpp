#include "qt/wizard/PreviewWindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtGui/QScreen>
#include <algorithm>
#include <array>
#include <utility>

#include "qt/Texts.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {
namespace {

constexpr QSize kUsualSize(420, 300), kLeastSize(240, 180);
constexpr int kGap = 12, kMargin = 8;
constexpr double kDimmed = 0.35;
constexpr int kTextFlags = Qt::AlignCenter | Qt::TextWordWrap;

/// Returns the parts of the screen to the right of a page, to its left, below it and above it.
std::array<QRect, 4> SidesOf(const QRect& page, const QRect& screen) {
  const QRect around = page.adjusted(-kGap, -kGap, kGap, kGap);
  return {QRect(QPoint(around.right(), screen.top()), screen.bottomRight()),
          QRect(screen.topLeft(), QPoint(around.left(), screen.bottom())),
          QRect(QPoint(screen.left(), around.bottom()), screen.bottomRight()),
          QRect(screen.topLeft(), QPoint(screen.right(), around.top()))};
}

}  // namespace

PreviewWindow::PreviewWindow(QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::WindowDoesNotAcceptFocus | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                         Qt::WindowCloseButtonHint) {
  setObjectName(QStringLiteral("PreviewWindow"));
  setWindowTitle(QStringLiteral("Preview"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setMinimumSize(kLeastSize);
  resize(kUsualSize);
  setAccessibleName(QStringLiteral("Preview of the chart"));
}

bool PreviewWindow::PlaceBeside(const QRect& page, const QRect& screen) {
  QRect best;
  for (const QRect& side : SidesOf(page, screen)) {
    const QSize size = kUsualSize.boundedTo(side.size());
    if (size.width() < kLeastSize.width() || size.height() < kLeastSize.height()) continue;
    if (size.width() * size.height() <= best.width() * best.height()) continue;
    best = QRect(QPoint(), size);
    best.moveCenter(page.center());
    best.moveLeft(std::clamp(best.left(), side.left(), side.right() - best.width() + 1));
    best.moveTop(std::clamp(best.top(), side.top(), side.bottom() - best.height() + 1));
  }
  if (best.isEmpty()) return false;
  setGeometry(best);
  return true;
}

void PreviewWindow::ShowBeside(const QWidget& page) {
  if (closed_ || isVisible()) return;
  if (!placed_) placed_ = PlaceBeside(page.frameGeometry(), page.screen()->availableGeometry());
  if (placed_) show();
}

QSize PreviewWindow::Room() const {
  return ((QSizeF(size()) - QSizeF(2 * kMargin, 2 * kMargin)) * devicePixelRatioF()).toSize();
}

void PreviewWindow::Show(Preview preview) {
  outdated_ = preview.picture.isNull();
  if (outdated_) preview.picture = std::move(shown_.picture);
  shown_ = std::move(preview);
  setAccessibleDescription(TextOf(shown_.message));
  update();
}

void PreviewWindow::Clear() {
  shown_ = {};
  outdated_ = false;
  update();
}

int PreviewWindow::MessageHeight(const QString& message) const {
  if (message.isEmpty()) return 0;
  const QRect room(0, 0, width() - 4 * kMargin, height());
  return fontMetrics().boundingRect(room, kTextFlags, message).height() + 2 * kMargin;
}

void PreviewWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  if (!shown_.picture.isNull()) {
    QImage picture = shown_.picture;
    picture.setDevicePixelRatio(devicePixelRatioF());
    QRectF place(QPointF(), picture.deviceIndependentSize());
    place.moveCenter(QRectF(rect()).center());
    painter.setOpacity(outdated_ ? kDimmed : 1);
    painter.drawImage(place.topLeft(), picture);
    painter.setOpacity(1);
  }
  const QString message = TextOf(shown_.message);
  if (message.isEmpty()) return;
  QRect bar = rect();
  bar.setTop(bar.bottom() - MessageHeight(message) + 1);
  painter.fillRect(bar, palette().color(QPalette::ToolTipBase));
  painter.setPen(palette().color(QPalette::ToolTipText));
  painter.drawText(bar.adjusted(kMargin, kMargin, -kMargin, -kMargin), kTextFlags, message);
}

void PreviewWindow::resizeEvent(QResizeEvent* event) {
  if (event->oldSize().isValid()) Resized();  // Otherwise the window was just shown.
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
  closed_ = true;
  event->accept();
}

}  // namespace plotsmith::qt
