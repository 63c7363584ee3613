#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "forms/script/ScriptPlayer.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// The dialog of this thread that waits for a hand; null if none does.
HWND WaitingForm();

/// Plays a script of the wizard on the dialogs of this thread, by the messages of a mouse and a keyboard. It
/// works from outside: it finds the dialogs on the screen, reads them, and makes the next gesture each time
/// when a timer of this thread ticks and a dialog waits.
class ScriptedHands {
 public:
  explicit ScriptedHands(const std::string& script);
  ~ScriptedHands();
  ScriptedHands(const ScriptedHands&) = delete;
  ScriptedHands& operator=(const ScriptedHands&) = delete;

  /// What the script answers to a message box: IDOK or IDCANCEL.
  int AnswerBox(const std::string& text, bool isQuestion);
  /// The run is over. What was wrong, as "line 3: ..."; empty if the script was played to its end.
  std::string Finish();
  /// What the lines `show` have printed, as the command does.
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
