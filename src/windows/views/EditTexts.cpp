#include "windows/views/EditTexts.h"

#include <algorithm>
#include <utility>

#include "forms/TextBox.h"

namespace plotsmith::windows {
namespace {

/// The clipboard, open as long as this object lives, so that it doesn't stay locked for other programs after
/// an error.
class Clipboard {
 public:
  explicit Clipboard(HWND owner) : isOpen_(OpenClipboard(owner) != FALSE) {}
  ~Clipboard() {
    if (isOpen_) CloseClipboard();
  }
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;
  bool IsOpen() const { return isOpen_; }

 private:
  bool isOpen_;
};

/// A block of memory that is locked as long as this object lives.
class LockedText {
 public:
  explicit LockedText(HANDLE block)
      : block_(block), units_(block == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(block))) {}
  ~LockedText() {
    if (units_ != nullptr) GlobalUnlock(block_);
  }
  LockedText(const LockedText&) = delete;
  LockedText& operator=(const LockedText&) = delete;
  /// Returns the units before the first zero.
  std::wstring Text() const {
    if (units_ == nullptr) return {};
    return {units_, std::find(units_, units_ + GlobalSize(block_) / sizeof(wchar_t), L'\0')};
  }

 private:
  HANDLE block_;
  const wchar_t* units_;
};

std::wstring ClipboardText(HWND owner) {
  if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return {};
  const Clipboard clipboard(owner);
  return clipboard.IsOpen() ? LockedText(GetClipboardData(CF_UNICODETEXT)).Text() : std::wstring();
}

/// The start and the end of the selection, in UTF-16 units. If nothing is selected, both are the position of
/// the cursor.
struct Selection {
  DWORD from = 0, to = 0;
};

Selection SelectionOf(HWND edit) {
  Selection selection;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&selection.from),
               reinterpret_cast<LPARAM>(&selection.to));
  return selection;
}

/// Returns the number of units that fit in place of the selection.
std::size_t RoomIn(HWND edit) {
  const auto [from, to] = SelectionOf(edit);
  const auto most = static_cast<std::size_t>(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
  const auto kept = static_cast<std::size_t>(GetWindowTextLengthW(edit)) - (to - from);
  return most > kept ? most - kept : 0;
}

/// Replaces each line end in the text by `lineEnd`.
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
    // A character of two units, or a line end, is left out if it doesn't fit completely.
    const bool isHalf = !text.empty() && (IS_HIGH_SURROGATE(text.back()) || text.back() == L'\r');
    if (isHalf) text.pop_back();
  }
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace

bool HasHalfCharacter(HWND edit) {
  const DWORD cursor = SelectionOf(edit).from;
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()))));
  if (cursor == 0 || cursor > text.size() || !IS_HIGH_SURROGATE(text[cursor - 1])) return false;
  return cursor == text.size() || !IS_LOW_SURROGATE(text[cursor]);
}

bool HandleEditMessage(HWND edit, Lines lines, UINT message, WPARAM wParam) {
  if (message == WM_PASTE) {
    PasteText(edit, lines);
    return true;
  }
  if (message != WM_CHAR) return false;
  constexpr WPARAM kControlA = 1;  // the character of Ctrl+A in WM_CHAR
  const auto unit = static_cast<wchar_t>(wParam);
  if (wParam == kControlA) {
    SendMessageW(edit, EM_SETSEL, 0, -1);
    return true;
  }
  // Half of a surrogate pair has no meaning: there must be room for both units.
  const bool isHalfTooMuch =
      (IS_HIGH_SURROGATE(unit) && RoomIn(edit) < 2) || (IS_LOW_SURROGATE(unit) && !HasHalfCharacter(edit));
  if (isHalfTooMuch) MessageBeep(MB_OK);
  return isHalfTooMuch;
}

}  // namespace plotsmith::windows
