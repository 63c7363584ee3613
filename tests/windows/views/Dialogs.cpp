#include "tests/windows/views/Dialogs.h"

#include "tests/windows/views/WindowsHand.h"
#include "tests/windows/views/WindowsStage.h"

namespace plotsmith::test {

std::shared_ptr<windows::FormsView> theDialogs;
HWND theHostWindow = nullptr;
forms::EventQueue* theQueue = nullptr;

HWND FrontWindow() { return theDialogs->Front() == nullptr ? nullptr : theDialogs->Front()->Handle(); }
forms::Form& FrontForm() { return theDialogs->Front()->Model(); }

void HandleMessages() {
  while (theDialogs->HandleMessage()) {
  }
}

void EndAction() {
  HandleMessages();
  if (theDialogs->IsFrontGone()) {
    theDialogs->Wait(*theQueue, std::nullopt);
  } else {
    theDialogs->PostTo(*theQueue);
    theQueue->Post(FrontForm(), [] {});
  }
}

Hands HandsOnDialogs() {
  theDialogs = std::make_shared<windows::FormsView>([] { return theHostWindow; });
  const auto handle = [](forms::EventQueue& queue) {
    HandleMessages();
    theDialogs->PostTo(queue);
  };
  return {std::make_unique<WindowsHand>(FrontWindow, handle),
          [](const auto& player) { return std::make_shared<WindowsStage>(theDialogs, player); }};
}

}  // namespace plotsmith::test
