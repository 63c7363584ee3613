#include "windows/desktop/HtmlHelp.h"

#include <optional>

namespace plotsmith::windows {
namespace {

constexpr UINT kHelpContext = 0x000F;  // HH_HELP_CONTEXT: the data is the number of a topic

HMODULE HtmlHelpLibrary() {
  // A file of the same name in the folder of a workbook must not be loaded.
  static const HMODULE library = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return library;
}

/// Owner, file, command, data. It answers the window of the help, null if it can't show it.
template <class Letter>
using HtmlHelpFunction = HWND(WINAPI*)(HWND, const Letter*, UINT, DWORD_PTR);

template <class Letter>
bool Show(const char* function, HWND owner, const Letter* file, std::int32_t topic) {
  const FARPROC found = GetProcAddress(HtmlHelpLibrary(), function);
  if (found == nullptr) return false;
  const auto htmlHelp = reinterpret_cast<HtmlHelpFunction<Letter>>(reinterpret_cast<void*>(found));
  return htmlHelp(owner, file, kHelpContext, static_cast<DWORD_PTR>(topic)) != nullptr;
}

/// The path in the characters of the system's code page; absent if that lacks one of them.
std::optional<std::string> AnsiPath(const std::wstring& path) {
  const auto length = static_cast<int>(path.size());
  std::string ansi(path.size() * 4, '\0');  // no code page has longer characters
  ansi.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, 0, path.data(), length, ansi.data(),
                                                           static_cast<int>(ansi.size()), nullptr, nullptr)));
  std::wstring again(path.size() * 2, L'\0');
  again.resize(static_cast<std::size_t>(MultiByteToWideChar(
      CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), again.data(), static_cast<int>(again.size()))));
  return again == path ? std::optional(ansi) : std::nullopt;
}

}  // namespace

bool HasHtmlHelp() { return HtmlHelpLibrary() != nullptr; }

bool ShowHelpTopic(HWND owner, const std::wstring& file, std::int32_t topic) {
  if (const auto ansi = AnsiPath(file)) return Show("HtmlHelpA", owner, ansi->c_str(), topic);
  return Show("HtmlHelpW", owner, file.c_str(), topic);
}

}  // namespace plotsmith::windows
