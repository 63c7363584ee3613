#pragma once

#include <vector>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Disables the windows of this thread while this object exists. Excel has a window for each workbook.
/// Windows that were disabled before stay disabled afterwards.
class DisabledWindows {
 public:
  /// Disables all visible windows but `except`, which may be null.
  explicit DisabledWindows(HWND except = nullptr);
  ~DisabledWindows();
  DisabledWindows(const DisabledWindows&) = delete;
  DisabledWindows& operator=(const DisabledWindows&) = delete;

 private:
  std::vector<HWND> windows_;
};

}  // namespace plotsmith::windows
