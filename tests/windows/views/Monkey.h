#pragma once

#include <random>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Posts random mouse and keyboard messages to random controls of a form's window. The same seed gives the
/// same messages.
class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) {}
  /// Posts the messages of one event. `front` is the window of the front form.
  void MakeEvent(HWND front);

 private:
  int Below(int end);
  HWND AnyControl(HWND front);
  POINT AnyPlace(HWND window);
  HWND Focus(HWND front);
  void Click(HWND front);
  void Double(HWND front);
  void Drag(HWND front);
  void Press(HWND front);
  void Letter(HWND front);
  void Type(HWND front);
  void Wheel(HWND front);
  void Paste(HWND front);
  void Resize(HWND front);
  void Theme(HWND front);
  void Close(HWND front);

  std::mt19937 random_;
};

}  // namespace plotsmith::test
