#include "windows/desktop/DisabledWindows.h"

#include <algorithm>

namespace plotsmith::windows {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
  if (IsWindowVisible(window) && IsWindowEnabled(window)) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  }
  return TRUE;
}

}  // namespace

DisabledWindows::DisabledWindows(HWND except) {
  EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows_));
  std::erase(windows_, except);
  std::ranges::for_each(windows_, [](HWND window) { EnableWindow(window, FALSE); });
}

DisabledWindows::~DisabledWindows() {
  std::ranges::for_each(windows_, [](HWND window) { EnableWindow(window, TRUE); });
}

}  // namespace plotsmith::windows
