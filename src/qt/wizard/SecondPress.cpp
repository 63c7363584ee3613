#include "qt/wizard/SecondPress.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QStyleHints>
#include <QtWidgets/QAbstractButton>

namespace plotsmith::qt {

SecondPress::SecondPress(QWidget& window) : QObject(&window), pointer_(QCursor::pos()) {
  sinceShown_.start();
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) button->installEventFilter(this);
}

bool SecondPress::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) return true;
  if (event->type() != QEvent::MouseButtonPress) return false;
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const QPoint place = static_cast<QMouseEvent&>(*event).globalPosition().toPoint();
  return !sinceShown_.hasExpired(hints.mouseDoubleClickInterval()) &&
         (place - pointer_).manhattanLength() <= hints.mouseDoubleClickDistance();
}

}  // namespace plotsmith::qt
