#pragma once

#include <map>
#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Presses a button on each page that opens, as long as this object lives. Message boxes are answered as
/// usual.
class PressingHand {
 public:
  /// `buttons` has the name of a button for the name of each page.
  explicit PressingHand(std::map<std::string, std::string> buttons);
  ~PressingHand();
  PressingHand(const PressingHand&) = delete;
  PressingHand& operator=(const PressingHand&) = delete;

  /// The number of presses so far.
  int Presses() const { return presses_; }

 private:
  static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
  void Press();

  std::map<std::string, std::string> buttons_;
  int presses_ = 0;
  UINT_PTR timer_ = 0;
};

}  // namespace plotsmith::test
