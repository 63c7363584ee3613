#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "forms/script/ScriptPlayer.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// The dialog of this thread that waits for user input; null if there is none.
HWND WaitingForm();

/// Plays a script of the wizard on the dialogs of this thread, with mouse and keyboard messages. It works
/// from outside: it finds the dialogs on the screen, reads them, and performs the next action when a timer of
/// this thread ticks while a dialog waits.
class ScriptedHands {
 public:
  explicit ScriptedHands(const std::string& script);
  ~ScriptedHands();
  ScriptedHands(const ScriptedHands&) = delete;
  ScriptedHands& operator=(const ScriptedHands&) = delete;

  /// Returns the script's answer to a message box: IDOK or IDCANCEL.
  int AnswerBox(const std::string& text, bool isQuestion);
  /// Ends the run. Returns the failure, such as "line 3: ...", or "".
  std::string Finish();
  /// The output of the lines `show`, in the format of the command.
  std::string Shown() const { return shown_.str(); }

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  void PlayLines();
  void Show();

  std::istringstream text_;
  forms::StreamLines lines_;
  std::ostringstream shown_;
  forms::ScriptPlayer player_;
  HWND front_ = nullptr;
  UINT_PTR timer_;
};

}  // namespace plotsmith::test
