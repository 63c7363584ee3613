#include "qt/wizard/PressAfterShow.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QStyleHints>
#include <QtWidgets/QAbstractButton>

namespace plotsmith::qt {

PressAfterShow::PressAfterShow(QWidget& window) : QObject(&window), pointer_(QCursor::pos()) {
  sinceShown_.start();
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) button->installEventFilter(this);
}

bool PressAfterShow::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) return true;
  if (event->type() != QEvent::MouseButtonPress) return false;
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const QPoint place = static_cast<QMouseEvent&>(*event).globalPosition().toPoint();
  return !sinceShown_.hasExpired(hints.mouseDoubleClickInterval()) &&
         (place - pointer_).manhattanLength() <= hints.mouseDoubleClickDistance();
}

}  // namespace plotsmith::qt
