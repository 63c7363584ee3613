#pragma once

#include <cstdint>
#include <string>

#include "windows/com/Windows.h"

/// @file
/// HTML Help. Its library is loaded at the first call and stays loaded, because help windows can outlive a
/// run.
namespace plotsmith::windows {

/// Returns true if HTML Help is installed.
bool HasHtmlHelp();

/// Shows a topic of a help file by its number. Returns false if HTML Help can't show it. `owner` may be null.
/// HtmlHelpA is called if the system's code page has all characters of the path, HtmlHelpW otherwise.
bool ShowHelpTopic(HWND owner, const std::wstring& file, std::int32_t topic);

}  // namespace plotsmith::windows
