// Shows help topics like the Help button of a page, and prints the texts of message boxes, one line per
// topic: plotsmith_windows_help FILE NUMBER...
#include <cstdio>
#include <cwchar>

#include "tests/windows/boxes/MessageBoxes.h"
#include "windows/com/Texts.h"
#include "windows/com/Windows.h"
#include "windows/desktop/WindowsDesktop.h"

int wmain(int count, wchar_t** arguments) {
  if (count < 3) return 2;
  OleInitialize(nullptr);
  plotsmith::test::MessageBoxes boxes;
  plotsmith::windows::WindowsDesktop desktop;
  for (int i = 2; i < count; ++i) {
    desktop.ShowHelp(0, plotsmith::com::Utf8(arguments[1], wcslen(arguments[1])), _wtoi(arguments[i]));
    std::printf("%ls: %s\n", arguments[i], boxes.Take().c_str());
    std::fflush(stdout);
  }
  return 0;
}
