#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/desktop/Desktop.h"

namespace plotsmith::windows {

/// The desktop of Windows, on the thread of Excel.
class WindowsDesktop final : public desktop::Desktop {
 public:
  /// A box of Windows, modal to the page in front, or to the host's window while no page is shown.
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// By HTML Help. A box says so where the file or HTML Help itself is missing.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  double Timer() override;
  /// Until the mouse next moves over a window that sets a pointer of its own.
  void SetMousePointer(std::int32_t pointer) override;
  std::int32_t UserDefaultLCID() override;

  /// The handle of the host's window, which owns boxes while no page is shown; 0 for none.
  ///@{
  std::intptr_t HostWindow() const { return hostWindow_; }
  void SetHostWindow(std::intptr_t window) { hostWindow_ = window; }
  ///@}

 private:
  /// The handle of the window that a box goes in front of; 0 for none.
  std::intptr_t Owner() const;

  std::intptr_t hostWindow_ = 0;
};

}  // namespace plotsmith::windows
