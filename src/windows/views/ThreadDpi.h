#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Lets the thread work in the pixels of each monitor while this lives, whatever the program around the
/// component has chosen. Windows that are created meanwhile are sharp on every monitor.
class ThreadDpi {
 public:
  ThreadDpi() : before_(SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2)) {}
  ~ThreadDpi() {
    if (before_ != nullptr) SetThreadDpiAwarenessContext(before_);
  }
  ThreadDpi(const ThreadDpi&) = delete;
  ThreadDpi& operator=(const ThreadDpi&) = delete;

 private:
  DPI_AWARENESS_CONTEXT before_;
};

}  // namespace plotsmith::windows
