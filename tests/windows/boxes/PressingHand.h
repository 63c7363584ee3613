#pragma once

#include <map>
#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// A hand that presses a button on each page that comes, for as long as this lives. Message boxes are
/// answered as ever.
class PressingHand {
 public:
  /// `buttons` has the name of the button for the name of each page.
  explicit PressingHand(std::map<std::string, std::string> buttons);
  ~PressingHand();
  PressingHand(const PressingHand&) = delete;
  PressingHand& operator=(const PressingHand&) = delete;

  /// How many buttons were pressed.
  int Presses() const { return presses_; }

 private:
  static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
  void Press();

  std::map<std::string, std::string> buttons_;
  int presses_ = 0;
  UINT_PTR timer_ = 0;
};

}  // namespace plotsmith::test
