#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtWidgets/QDialog>

#include "qt/wizard/PressAfterShow.h"

namespace plotsmith::qt {

/// Processes events until `isDone` returns true. No loop of Qt is running meanwhile, so no exception of the
/// system passes through one.
template <class Condition>
void ProcessEventsUntil(const Condition& isDone) {
  while (!isDone()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Shows a modal dialog, waits until it is closed, and returns its result.
inline int RunDialog(QDialog& dialog) {
  dialog.setModal(true);
  dialog.show();
  new PressAfterShow(dialog);
  ProcessEventsUntil([&] { return !dialog.isVisible(); });
  return dialog.result();
}

}  // namespace plotsmith::qt
