#include "tests/windows/boxes/MonkeyHands.h"

#include "tests/windows/boxes/ScriptedHands.h"

namespace plotsmith::test {
namespace {

constexpr UINT kTickInterval = 10;  // milliseconds

MonkeyHands* theMonkey = nullptr;  // a timer has no data of its own

}  // namespace

MonkeyHands::MonkeyHands(unsigned seed, int events) : monkey_(seed), events_(events) {
  SetDoubleClickTime(1);  // milliseconds; a monkey presses buttons faster than a user
  theMonkey = this;
  timer_ = SetTimer(nullptr, 0, kTickInterval, Tick);
}

MonkeyHands::~MonkeyHands() {
  KillTimer(nullptr, timer_);
  theMonkey = nullptr;
}

void CALLBACK MonkeyHands::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (theMonkey != nullptr) theMonkey->MakeEvent();
}

void MonkeyHands::MakeEvent() {
  const HWND front = WaitingForm();
  if (front == nullptr) return;
  if (made_ < events_) {
    ++made_;
    monkey_.MakeEvent(front);
  } else {
    PostMessageW(front, WM_CLOSE, 0, 0);
  }
}

int MonkeyHands::AnswerBox(bool isQuestion) { return isQuestion && ++answers_ % 2 == 0 ? IDCANCEL : IDOK; }

}  // namespace plotsmith::test
