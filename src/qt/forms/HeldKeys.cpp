#include "qt/forms/HeldKeys.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QPlainTextEdit>

namespace plotsmith::qt {

forms::KeyPress KeyPressOf(const QKeyEvent& event) {
  forms::KeyPress press;
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) press.key = forms::Key::kEnter;
  if (event.key() == Qt::Key_Escape) press.key = forms::Key::kEscape;
  if (event.key() == Qt::Key_F1) press.key = forms::Key::kHelp;
  press.withAlt = event.modifiers().testFlag(Qt::AltModifier);
  press.isRepeated = event.isAutoRepeat();
  return press;
}

HeldKeys::HeldKeys() { QCoreApplication::instance()->installEventFilter(this); }

bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isInLines = qobject_cast<QPlainTextEdit*>(object) != nullptr;
  if (!forms::IsHeldKey(KeyPressOf(key), isInLines)) return false;
  key.accept();  // Qt sends an overridden shortcut again as a key press, which ends here too.
  return true;
}

}  // namespace plotsmith::qt
