#include "windows/views/EditTexts.h"

#include <algorithm>
#include <utility>

#include "forms/TextBox.h"

namespace plotsmith::windows {
namespace {

std::wstring ClipboardText(HWND owner) {
  std::wstring text;
  if (!IsClipboardFormatAvailable(CF_UNICODETEXT) || !OpenClipboard(owner)) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* units = static_cast<const wchar_t*>(GlobalLock(data))) {
      const std::size_t most = GlobalSize(data) / sizeof(wchar_t);
      text.assign(units, std::find(units, units + most, L'\0'));
      GlobalUnlock(data);
    }
  }
  CloseClipboard();
  return text;
}

/// How many more units fit when the selection is gone.
std::size_t RoomIn(HWND edit) {
  DWORD from = 0, to = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  const auto most = static_cast<std::size_t>(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
  const auto kept = static_cast<std::size_t>(GetWindowTextLengthW(edit)) - (to - from);
  return most > kept ? most - kept : 0;
}

/// The text with a line end for each kind of line end.
std::wstring WithLineEnds(const std::wstring& text, const std::wstring& lineEnd) {
  std::wstring result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'\n' && i > 0 && text[i - 1] == L'\r') continue;
    if (text[i] == L'\r' || text[i] == L'\n') {
      result += lineEnd;
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace

std::wstring Typeable(std::wstring text, Lines lines) {
  text = WithLineEnds(text, lines == Lines::kSeveral ? L"\r\n" : L"\n");
  std::u16string units(text.begin(), text.end());
  forms::ReplaceUntypeable(units, lines == Lines::kSeveral ? u"\r\n\t" : u"");
  return {units.begin(), units.end()};
}

namespace {

void PasteText(HWND edit, Lines lines) {
  std::wstring text = Typeable(ClipboardText(edit), lines);
  const std::size_t room = RoomIn(edit);
  if (text.size() > room) {
    MessageBeep(MB_OK);
    text.resize(room);
    // What has no room as a whole is left out: a character of two units, and a line end.
    const bool isHalf = !text.empty() && (IS_HIGH_SURROGATE(text.back()) || text.back() == L'\r');
    if (isHalf) text.pop_back();
  }
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace

bool HandleEditMessage(HWND edit, Lines lines, UINT message, WPARAM wParam) {
  constexpr WPARAM kControlA = 1;  // as WM_CHAR has it
  const bool selectsAll = message == WM_CHAR && wParam == kControlA;
  if (selectsAll) SendMessageW(edit, EM_SETSEL, 0, -1);
  if (message == WM_PASTE) PasteText(edit, lines);
  return selectsAll || message == WM_PASTE;
}

}  // namespace plotsmith::windows
