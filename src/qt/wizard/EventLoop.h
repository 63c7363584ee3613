#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtWidgets/QDialog>

#include "qt/wizard/SecondPress.h"

namespace plotsmith::qt {

/// Lets windows work until `isDone` holds. No loop of Qt's own is left running, so an exception of the system
/// never has to pass through one.
template <class Condition>
void ProcessEventsUntil(const Condition& isDone) {
  while (!isDone()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Shows a dialog, which blocks the other windows, and waits until it has gone; answers its result.
inline int RunDialog(QDialog& dialog) {
  dialog.setModal(true);
  dialog.show();
  new SecondPress(dialog);
  ProcessEventsUntil([&] { return !dialog.isVisible(); });
  return dialog.result();
}

}  // namespace plotsmith::qt
