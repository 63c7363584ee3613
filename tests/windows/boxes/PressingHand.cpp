#include "tests/windows/boxes/PressingHand.h"

#include <utility>

#include "tests/windows/boxes/ScriptedHands.h"
#include "tests/windows/views/WindowState.h"
#include "windows/views/ControlNames.h"

namespace plotsmith::test {
namespace {

constexpr UINT kTickInterval = 10;  // milliseconds

PressingHand* theHand = nullptr;  // a timer has no data of its own

}  // namespace

PressingHand::PressingHand(std::map<std::string, std::string> buttons) : buttons_(std::move(buttons)) {
  SetDoubleClickTime(1);  // milliseconds; this hand presses buttons faster than a user
  theHand = this;
  timer_ = SetTimer(nullptr, 0, kTickInterval, Tick);
}

PressingHand::~PressingHand() {
  KillTimer(nullptr, timer_);
  theHand = nullptr;
}

void CALLBACK PressingHand::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (theHand != nullptr) theHand->Press();
}

void PressingHand::Press() {
  const HWND page = WaitingForm();
  if (page == nullptr) return;
  const auto button = buttons_.find(windows::WindowName(page));
  if (button == buttons_.end()) return;
  ++presses_;
  SendMessageW(ControlWindow(page, button->second), BM_CLICK, 0, 0);
}

}  // namespace plotsmith::test
