#include "qt/forms/HeldKeys.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QPlainTextEdit>

namespace plotsmith::qt {
namespace {

bool PressesButtons(const QObject* object, const QKeyEvent& event) {
  if (event.modifiers().testFlag(Qt::AltModifier)) return true;
  if (event.key() == Qt::Key_Escape) return true;
  const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  return isEnter && qobject_cast<const QPlainTextEdit*>(object) == nullptr;
}

}  // namespace

HeldKeys::HeldKeys() { QCoreApplication::instance()->installEventFilter(this); }

bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  if (!key.isAutoRepeat() || !PressesButtons(object, key)) return false;
  key.accept();  // a shortcut that was overridden comes back as a press, which ends here too
  return true;
}

}  // namespace plotsmith::qt
