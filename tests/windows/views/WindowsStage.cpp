#include "tests/windows/views/WindowsStage.h"

#include <gtest/gtest.h>

#include "tests/windows/views/Dialogs.h"
#include "tests/windows/views/WindowState.h"

namespace plotsmith::test {

void WindowsStage::Open(forms::Form& form) {
  player_->Open(form);
  view_->Open(form);
}

void WindowsStage::Close(forms::Form& form) {
  view_->Close(form);
  player_->Close(form);
}

void WindowsStage::Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) {
  view_->ShowChanges();
  while (view_->HandleMessage()) {
  }
  view_->ShowChanges();
  if (view_->IsFrontGone()) return view_->Wait(queue, atMost);
  const forms::Form& form = view_->Front()->Model();
  EXPECT_EQ(DifferencesFromModel(form, view_->Front()->Handle()), "") << form.Name();
  view_->PostTo(queue);
  if (!queue.IsEmpty()) return;
  theQueue = &queue;
  player_->Wait(queue, atMost);
  theQueue = nullptr;
}

}  // namespace plotsmith::test
