#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// HtmlHelpW: owner, file, command, data. It answers the window of the help, null if it can't show it.
using HtmlHelpFunction = HWND(WINAPI*)(HWND, const wchar_t*, UINT, DWORD_PTR);
/// The command HH_HELP_CONTEXT: the data is the number of a topic.
inline constexpr UINT kHelpContext = 0x000F;

/// HTML Help, which is loaded at the first call and stays in the process, as its windows outlast a run. Null
/// where it isn't installed.
HtmlHelpFunction FindHtmlHelp();

}  // namespace plotsmith::windows
