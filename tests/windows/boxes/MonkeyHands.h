#pragma once

#include <string>

#include "tests/windows/views/Monkey.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Sends random input to the dialogs of this thread and their message boxes: one event for each tick of a
/// timer while a dialog waits. At the end it closes all dialogs.
class MonkeyHands {
 public:
  MonkeyHands(unsigned seed, int events);
  ~MonkeyHands();
  MonkeyHands(const MonkeyHands&) = delete;
  MonkeyHands& operator=(const MonkeyHands&) = delete;

  /// Returns the answer to a message box: IDOK or IDCANCEL.
  int AnswerBox(bool isQuestion);
  /// The number of events so far.
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
