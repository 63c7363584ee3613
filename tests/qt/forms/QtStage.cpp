#include "tests/qt/forms/QtStage.h"

#include <QtCore/QCoreApplication>
#include <gtest/gtest.h>

#include "tests/qt/forms/WidgetState.h"

namespace plotsmith::test {

void QtStage::Open(forms::Form& form) {
  player_->Open(form);
  windows_->Open(form);
}

void QtStage::Close(forms::Form& form) {
  windows_->Close(form);
  player_->Close(form);
}

void QtStage::Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) {
  windows_->ShowChanges();
  // Without a window manager, a window doesn't become active again when a drop-down list closes.
  windows_->Front()->activateWindow();
  QCoreApplication::processEvents();
  windows_->ShowChanges();
  EXPECT_EQ(DifferencesFromModel(*windows_->Front()), "") << windows_->Front()->Model().Name();
  windows_->PostTo(queue);
  if (queue.IsEmpty()) player_->Wait(queue, atMost);
}

}  // namespace plotsmith::test
