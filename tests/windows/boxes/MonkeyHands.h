#pragma once

#include <string>

#include "tests/windows/views/Monkey.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Lets a monkey play with the dialogs of this thread and their message boxes: one event each time when a
/// timer of this thread ticks and a dialog waits, and in the end it closes them all.
class MonkeyHands {
 public:
  MonkeyHands(unsigned seed, int events);
  ~MonkeyHands();
  MonkeyHands(const MonkeyHands&) = delete;
  MonkeyHands& operator=(const MonkeyHands&) = delete;

  /// What the monkey answers to a message box: IDOK or IDCANCEL.
  int AnswerBox(bool isQuestion);
  /// How many events it has made.
  int Made() const { return made_; }

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  void MakeEvent();

  Monkey monkey_;
  int events_;
  int made_ = 0;
  int answers_ = 0;
  UINT_PTR timer_;
};

}  // namespace plotsmith::test
