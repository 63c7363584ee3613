#pragma once

#include <string>
#include <vector>

#include "tests/support/PagesTest.h"
#include "tests/support/WizardWays.h"
#include "tests/windows/views/Dialogs.h"

namespace plotsmith::test {

/// A window of a host with a timer, which records the messages that it receives.
class HostWindow {
 public:
  HostWindow();
  ~HostWindow();
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  HWND Handle() const { return window_; }
  int Ticks() const { return ticks_; }
  /// The number of mouse and keyboard messages.
  int Inputs() const { return inputs_; }
  /// Returns true if a page was still visible each time the window was enabled again.
  bool CameBackInTime() const { return cameBackInTime_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_;
  int ticks_ = 0;
  int inputs_ = 0;
  bool cameBackInTime_ = true;
};

/// A test of the dialogs with scripts, in front of a host's window. Scripts have the verb `do` of PageLines.
class DialogTest : public PagesTest {
 protected:
  DialogTest();
  ~DialogTest() override;
  /// Opens a copy of the orders with a chart, in which test::kWays lead to each page, and runs a script.
  std::string PlayOnOrders(const std::string& script, Actions actions = {});

  HostWindow hostWindow_;

 private:
  std::string orders_;
};

}  // namespace plotsmith::test
