#include "windows/desktop/WindowsDesktop.h"

#include <optional>

#include "common/App.h"
#include "common/PSConstants.h"
#include "windows/com/Calls.h"
#include "windows/com/Texts.h"
#include "windows/com/Windows.h"
#include "windows/desktop/DisabledWindows.h"
#include "windows/desktop/HtmlHelp.h"

namespace plotsmith::windows {
namespace {

HWND WindowOf(std::intptr_t handle) { return reinterpret_cast<HWND>(handle); }

/// Returns a sentence with the reason why the help can't be shown; empty if it was shown.
std::string HelpFailure(std::intptr_t owner, const std::string& file, std::int32_t topic) {
  if (file.empty()) return "The host hasn't set the path of the help file.";
  // The code doesn't use std::filesystem, which would add 160 KB to the DLL.
  if (GetFileAttributesW(com::Wide(file).c_str()) == INVALID_FILE_ATTRIBUTES) {
    return "The help file \"" + file + "\" isn't there.";
  }
  if (!HasHtmlHelp()) return "HTML Help (hhctrl.ocx) isn't installed on this computer.";
  if (!ShowHelpTopic(WindowOf(owner), com::Wide(file), topic)) {
    return "HTML Help can't show topic " + std::to_string(topic) + " of \"" + file + "\".";
  }
  return "";
}

}  // namespace

std::intptr_t WindowsDesktop::Owner() const {
  const forms::Form* const front = App.Forms ? App.Forms->Front() : nullptr;
  const std::intptr_t owner = front != nullptr && front->hWnd != 0 ? front->hWnd : hostWindow_;
  return IsWindow(WindowOf(owner)) ? owner : 0;
}

std::int32_t WindowsDesktop::MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                                    std::string_view title) {
  const HWND owner = WindowOf(Owner());
  UINT style = buttons == desktop::Buttons::kOkCancel ? MB_OKCANCEL : MB_OK;
  if (icon == desktop::Icon::kCritical) style |= MB_ICONERROR;
  // The box disables only its owner, but Excel has a window for each workbook. Without an owner, MB_TASKMODAL
  // disables all windows of this thread.
  std::optional<DisabledWindows> otherWindows;
  if (owner == nullptr) {
    style |= MB_TASKMODAL;
  } else {
    otherWindows.emplace(owner);
  }
  const int answer = MessageBoxW(owner, com::Wide(text).c_str(),
                                 com::Wide(title.empty() ? kProductTitle : title).c_str(), style);
  com::NoteChange();  // Other windows could handle messages while the box was open.
  return buttons == desktop::Buttons::kOkCancel && answer != IDOK ? desktop::kCancel : desktop::kOk;
}

void WindowsDesktop::ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) {
  const std::string failure = HelpFailure(owner, file, topic);
  if (!failure.empty()) MsgBox(failure, desktop::Buttons::kOk, desktop::Icon::kNone, "");
}

double WindowsDesktop::Timer() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return ((now.wHour * 60.0) + now.wMinute) * 60.0 + now.wSecond + now.wMilliseconds / 1000.0;
}

void WindowsDesktop::SetMousePointer(std::int32_t pointer) {
  SetCursor(LoadCursorW(nullptr, pointer == desktop::kPointerHourglass ? IDC_WAIT : IDC_ARROW));
}

std::int32_t WindowsDesktop::UserDefaultLCID() { return static_cast<std::int32_t>(GetUserDefaultLCID()); }

}  // namespace plotsmith::windows
