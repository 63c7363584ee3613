#include "tests/windows/boxes/MessageBoxes.h"

#include <vector>

#include "runtime/Strings.h"
#include "windows/com/Texts.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {
namespace {

HHOOK hook = nullptr;
int nextAnswer = IDOK;
std::string taken;

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return com::Utf8(text.data(), text.size());
}

std::string ClassOf(HWND window) {
  wchar_t name[64];
  const int length = GetClassNameW(window, name, 64);
  return com::Utf8(name, static_cast<std::size_t>(length));
}

struct Content {
  std::string buttons;
  std::string text;
  bool hasIcon = false;
};

BOOL CALLBACK Look(HWND child, LPARAM content) {
  auto& box = *reinterpret_cast<Content*>(content);
  const std::string kind = ClassOf(child);
  const std::string text = TextOf(child);
  if (kind == "Button") box.buttons += (box.buttons.empty() ? "" : " ") + runtime::Replace(text, "&", "");
  if (kind == "Static" && (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
    box.hasIcon = (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0;
  } else if (kind == "Static") {
    box.text += text;
  }
  return TRUE;
}

void Remember(HWND window) {
  Content content;
  EnumChildWindows(window, Look, reinterpret_cast<LPARAM>(&content));
  const std::string text = runtime::Replace(runtime::Replace(content.text, "\r", "\\r"), "\n", "\\n");
  taken += (taken.empty() ? "" : "\n") + TextOf(window) + " [" + (content.hasIcon ? "critical " : "") +
           content.buttons + "]: " + text;
}

LRESULT CALLBACK Activated(int code, WPARAM window, LPARAM data) {
  const auto box = reinterpret_cast<HWND>(window);
  if (code == HCBT_ACTIVATE && ClassOf(box) == "#32770") {
    Remember(box);
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(std::exchange(nextAnswer, IDOK)), 0);
  }
  return CallNextHookEx(hook, code, window, data);
}

}  // namespace

MessageBoxes::MessageBoxes() { hook = SetWindowsHookExW(WH_CBT, Activated, nullptr, GetCurrentThreadId()); }

MessageBoxes::~MessageBoxes() { UnhookWindowsHookEx(hook); }

void MessageBoxes::AnswerNext(int button) { nextAnswer = button; }

std::string MessageBoxes::Take() { return std::exchange(taken, {}); }

}  // namespace plotsmith::test
