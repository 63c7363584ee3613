#include "qt/forms/QtView.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

namespace plotsmith::qt {

void QtView::Open(forms::Form& form) {
  windows_.push_back(std::make_unique<FormWindow>(form, owner_, pending_.PostFor(form), presses_));
  windows_.back()->show();
  windows_.back()->activateWindow();
  ShowChanges();  // Hide old windows after the new one is shown, so that there is always a window.
  // A form may work for long before it waits, and must be visible meanwhile.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtView::Close(forms::Form& form) {
  pending_.Discard(form);
  windows_.pop_back();
  if (Front() != nullptr) Front()->BecomeFront();
}

void QtView::ShowChanges() {
  for (const auto& window : windows_) window->Update();
  Shown();
}

void QtView::Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) {
  ShowChanges();
  const QDeadlineTimer deadline = atMost ? QDeadlineTimer(*atMost) : QDeadlineTimer(QDeadlineTimer::Forever);
  QTimer alarm;  // processEvents has no timeout for waiting.
  if (atMost) alarm.start(*atMost);
  waits_ = true;
  while (pending_.IsEmpty() && !closesAll_ && !deadline.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  waits_ = false;
  if (closesAll_) {
    pending_.Clear();
    forms::Form& form = Front()->Model();
    queue.Post(form, [&form] { form.UserClose(); });
  }
  PostTo(queue);
}

// Updates windows during the work of the system. Actions of the user wait until it is over, so that they
// don't see intermediate states. Windows are painted and answer the window manager.
void QtView::HandleEvents(forms::EventQueue& queue) {
  ShowChanges();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  PostTo(queue);
}

}  // namespace plotsmith::qt
