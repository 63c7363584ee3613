#include "windows/desktop/HtmlHelp.h"

#include <optional>

namespace plotsmith::windows {
namespace {

constexpr UINT kHelpContext = 0x000F;  // HH_HELP_CONTEXT: the data is a topic's number

HMODULE HtmlHelpLibrary() {
  // The search path is limited so that a file of this name in a workbook's folder isn't loaded.
  static const HMODULE library = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return library;
}

/// HtmlHelp's signature: owner, file, command, data. It returns the window of the help, or null if the help
/// can't be shown.
template <class Letter>
using HtmlHelpFunction = HWND(WINAPI*)(HWND, const Letter*, UINT, DWORD_PTR);

template <class Letter>
bool Show(const char* function, HWND owner, const Letter* file, std::int32_t topic) {
  const FARPROC found = GetProcAddress(HtmlHelpLibrary(), function);
  if (found == nullptr) return false;
  const auto htmlHelp = reinterpret_cast<HtmlHelpFunction<Letter>>(reinterpret_cast<void*>(found));
  return htmlHelp(owner, file, kHelpContext, static_cast<DWORD_PTR>(topic)) != nullptr;
}

/// Returns the path in the system's code page; absent if the code page lacks one of its characters.
std::optional<std::string> AnsiPath(const std::wstring& path) {
  const auto length = static_cast<int>(path.size());
  std::string ansi(path.size() * 4, '\0');  // No code page has longer characters.
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
