#include "windows/views/KeyMessages.h"

#include "windows/views/ActivationContext.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {
namespace {

constexpr LPARAM kWasDown = LPARAM{1} << 30;
constexpr LPARAM kWithAlt = LPARAM{1} << 29;

bool IsInLines(HWND window) {
  const ControlView* const view = ControlView::Of(window);
  return view != nullptr && forms::TakesEnter(&view->Model());
}

LRESULT CALLBACK FilterMessage(int code, WPARAM wParam, LPARAM lParam) {
  if (code == MSGF_DIALOGBOX) {
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (isKey && forms::IsHeldKey(KeyPressOf(message), IsInLines(message.hwnd))) return TRUE;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

forms::KeyPress KeyPressOf(const MSG& message) {
  forms::KeyPress press;
  if (message.wParam == VK_RETURN) press.key = forms::Key::kEnter;
  if (message.wParam == VK_ESCAPE) press.key = forms::Key::kEscape;
  if (message.wParam == VK_F1) press.key = forms::Key::kHelp;
  press.withAlt = message.message == WM_SYSKEYDOWN && (message.lParam & kWithAlt) != 0;
  press.isRepeated = (message.lParam & kWasDown) != 0;
  return press;
}

HeldKeys::HeldKeys() : hook_(SetWindowsHookExW(WH_MSGFILTER, FilterMessage, nullptr, GetCurrentThreadId())) {}

HeldKeys::~HeldKeys() { UnhookWindowsHookEx(hook_); }

}  // namespace plotsmith::windows
