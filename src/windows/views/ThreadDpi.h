#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Makes the thread aware of the resolution of each monitor while this object exists. Windows that are
/// created during that time are sharp on every monitor. The host's own DPI awareness is restored afterwards.
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
