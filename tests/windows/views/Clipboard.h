#pragma once

#include <cstring>
#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Puts a text on the clipboard.
inline void SetClipboardText(const std::wstring& text) {
  if (!OpenClipboard(nullptr)) return;
  EmptyClipboard();
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

}  // namespace plotsmith::test
