#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/desktop/Desktop.h"

namespace plotsmith::windows {

/// The desktop on Windows, used on Excel's thread.
class WindowsDesktop final : public desktop::Desktop {
 public:
  /// Shows a Windows message box, modal to the page in front, or to the host's window if no page is open.
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// Shows the topic in HTML Help. A message box reports a missing file or a missing HTML Help.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  double Timer() override;
  /// Sets the pointer. It lasts until the mouse moves over a window that sets its own pointer.
  void SetMousePointer(std::int32_t pointer) override;
  std::int32_t UserDefaultLCID() override;

  /// The handle of the host's window, which owns message boxes while no page is open; 0 for none.
  /// @{
  std::intptr_t HostWindow() const { return hostWindow_; }
  void SetHostWindow(std::intptr_t window) { hostWindow_ = window; }
  ///@}

 private:
  /// Returns the handle of the window that owns a message box; 0 for none.
  std::intptr_t Owner() const;

  std::intptr_t hostWindow_ = 0;
};

}  // namespace plotsmith::windows
