#pragma once

#include <random>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Posts random messages of a mouse and a keyboard to random controls of a form's window, the same ones for
/// the same seed.
class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) {}
  /// `front` is the window of the form in front. The messages wait to be handled.
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
