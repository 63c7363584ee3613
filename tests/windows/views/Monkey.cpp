#include "tests/windows/views/Monkey.h"

#include <algorithm>
#include <string>
#include <vector>

#include "tests/windows/views/Clipboard.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"

namespace plotsmith::test {

void Monkey::MakeEvent(HWND front) {
  void (Monkey::*const actions[])(HWND) = {&Monkey::Click, &Monkey::Click,  &Monkey::Click, &Monkey::Press,
                                           &Monkey::Press, &Monkey::Press,  &Monkey::Type,  &Monkey::Double,
                                           &Monkey::Wheel, &Monkey::Paste,  &Monkey::Drag,  &Monkey::Resize,
                                           &Monkey::Theme, &Monkey::Letter, &Monkey::Close};
  (this->*actions[Below(static_cast<int>(std::size(actions)))])(front);
}

int Monkey::Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

HWND Monkey::AnyControl(HWND front) {
  const std::vector<HWND> all = ControlWindows(front);
  std::vector<HWND> usable;
  for (const HWND window : all) {
    if (IsWindowVisible(window) && IsWindowEnabled(window)) usable.push_back(window);
  }
  return usable.empty() ? front : usable[static_cast<std::size_t>(Below(static_cast<int>(usable.size())))];
}

POINT Monkey::AnyPlace(HWND window) {
  RECT area = {};
  GetClientRect(window, &area);
  return {Below(std::max<int>(area.right, 1)), Below(std::max<int>(area.bottom, 1))};
}

HWND Monkey::Focus(HWND front) { return GetFocus() == nullptr ? front : GetFocus(); }

void Monkey::Click(HWND front) {
  const HWND window = AnyControl(front);
  const WPARAM keys[] = {0, 0, MK_SHIFT, MK_CONTROL};
  PostClick(window, AnyPlace(window), keys[Below(4)]);
}

void Monkey::Double(HWND front) {
  const HWND window = AnyControl(front);
  const POINT place = AnyPlace(window);
  PostClick(window, place);
  PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(place.x, place.y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(place.x, place.y));
}

void Monkey::Drag(HWND front) {
  const HWND window = AnyControl(front);
  const POINT from = AnyPlace(window), to = AnyPlace(window);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
  PostMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
}

void Monkey::Press(HWND front) {
  const WPARAM keys[] = {VK_TAB,    VK_TAB,  VK_SPACE, VK_SPACE, VK_RETURN, VK_UP,     VK_DOWN,  VK_DOWN,
                         VK_LEFT,   VK_HOME, VK_END,   VK_PRIOR, VK_NEXT,   VK_F1,     VK_F4,    VK_BACK,
                         VK_DELETE, VK_F10,  VK_RIGHT, 'A',      '5',       VK_ESCAPE, VK_INSERT};
  PostKey(Focus(front), keys[Below(static_cast<int>(std::size(keys)))], Below(6) == 0);
}

void Monkey::Letter(HWND front) {
  PostMessageW(Focus(front), WM_SYSCHAR, static_cast<WPARAM>('a' + Below(26)), 0x20000001);
}

void Monkey::Type(HWND front) {
  const WPARAM units[] = {L'x', L'7', 1, 3, 22, 24, 26, 0xD83D, 0xDE00, 0xDC00, L'&', 0x1B, 0x7F, L'\t'};
  PostMessageW(Focus(front), WM_CHAR, units[Below(static_cast<int>(std::size(units)))], 0);
}

void Monkey::Wheel(HWND front) {
  PostMessageW(AnyControl(front), WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, Below(2) == 0 ? 120 : -120)),
               0);
}

void Monkey::Paste(HWND front) {
  const std::wstring texts[] = {L"",       L"x",      L"a\r\nb\nc",           L"\x01\t\x7F",
                                L"&&File", L"\xD83D", std::wstring(400, L'w')};
  SetClipboardText(texts[Below(7)]);
  PostMessageW(Focus(front), WM_PASTE, 0, 0);
}

void Monkey::Resize(HWND front) {
  SetWindowPos(front, nullptr, 0, 0, Below(1600), Below(1000), SWP_NOMOVE | SWP_NOZORDER);
}

void Monkey::Theme(HWND front) {
  RECT area = {};
  GetWindowRect(front, &area);
  const int dpi[] = {96, 120, 144, 192, 240};
  const int chosen = dpi[Below(5)];
  SendMessageW(front, Below(2) == 0 ? WM_DPICHANGED : WM_SYSCOLORCHANGE,
               static_cast<WPARAM>(MAKELONG(chosen, chosen)), reinterpret_cast<LPARAM>(&area));
}

void Monkey::Close(HWND front) {
  if (Below(3) == 0) PostMessageW(front, WM_CLOSE, 0, 0);
}

}  // namespace plotsmith::test
