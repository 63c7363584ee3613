#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Makes the thread aware of the resolution of each monitor while it lives. Windows that are created
/// meanwhile are sharp on every monitor. The host's own awareness is restored afterwards.
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
