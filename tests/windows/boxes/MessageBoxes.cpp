#include "tests/windows/boxes/MessageBoxes.h"

#include <utility>

#include "runtime/Strings.h"
#include "windows/com/Texts.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {
namespace {

constexpr UINT kAnswer = WM_APP;

// A hook has no user data, so these are thread-local.
thread_local HHOOK hook = nullptr;
thread_local HWND answerer = nullptr;
thread_local HWND shownBox = nullptr;
thread_local int nextAnswer = IDOK;
thread_local std::string taken;
thread_local std::function<int(const std::string& text, bool isQuestion)> answerBy;

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
  std::string buttons, text;
  bool hasIcon = false;
};

BOOL CALLBACK Look(HWND child, LPARAM content) {
  auto& box = *reinterpret_cast<Content*>(content);
  const std::string kind = ClassOf(child);
  const std::string text = TextOf(child);
  if (kind == "Button") box.buttons += (box.buttons.empty() ? "" : " ") + runtime::Replace(text, "&", "");
  if (kind == "Static" && (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
    box.hasIcon = SendMessageW(child, STM_GETICON, 0, 0) != 0;
  } else if (kind == "Static") {
    box.text += text;
  }
  return TRUE;
}

Content ContentOf(HWND window) {
  Content content;
  EnumChildWindows(window, Look, reinterpret_cast<LPARAM>(&content));
  return content;
}

void Remember(HWND window) {
  const Content content = ContentOf(window);
  const HWND owner = GetWindow(window, GW_OWNER);
  const std::string text = runtime::Replace(runtime::Replace(content.text, "\r", "\\r"), "\n", "\\n");
  taken += (taken.empty() ? "" : "\n") + TextOf(window) + " [" + (content.hasIcon ? "critical " : "") +
           content.buttons + "]" + (owner == nullptr ? "" : " of " + TextOf(owner)) + ": " + text;
}

/// A box has its texts only when it processes messages, so a message answers it.
LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM box, LPARAM data) {
  if (message != kAnswer) return DefWindowProcW(window, message, box, data);
  if (answerBy) {
    const Content content = ContentOf(reinterpret_cast<HWND>(box));
    nextAnswer = answerBy(content.text, content.buttons.find("Cancel") != content.buttons.npos);
  } else {
    Remember(reinterpret_cast<HWND>(box));
  }
  PostMessageW(reinterpret_cast<HWND>(box), WM_COMMAND, static_cast<WPARAM>(std::exchange(nextAnswer, IDOK)),
               0);
  return 0;
}

LRESULT CALLBACK WindowChanged(int code, WPARAM window, LPARAM data) {
  const auto box = reinterpret_cast<HWND>(window);
  if (code == HCBT_ACTIVATE && box != shownBox && ClassOf(box) == "#32770") {
    shownBox = box;
    PostMessageW(answerer, kAnswer, window, 0);
  }
  if (code == HCBT_DESTROYWND && box == shownBox) shownBox = nullptr;
  return CallNextHookEx(hook, code, window, data);
}

}  // namespace

MessageBoxes::MessageBoxes() {
  answerer = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(answerer, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Answer));
  hook = SetWindowsHookExW(WH_CBT, WindowChanged, nullptr, GetCurrentThreadId());
}

MessageBoxes::~MessageBoxes() {
  UnhookWindowsHookEx(hook);
  DestroyWindow(answerer);
}

void MessageBoxes::AnswerNext(int button) { nextAnswer = button; }

void MessageBoxes::AnswerBy(std::function<int(const std::string& text, bool isQuestion)> answer) {
  answerBy = std::move(answer);
}

std::string MessageBoxes::Take() { return std::exchange(taken, {}); }

}  // namespace plotsmith::test
