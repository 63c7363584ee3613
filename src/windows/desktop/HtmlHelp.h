#pragma once

#include <cstdint>
#include <string>

#include "windows/com/Windows.h"

/// @file
/// HTML Help, which is loaded at the first call and stays in the process, as its windows outlast a run.
namespace plotsmith::windows {

/// Whether HTML Help is installed.
bool HasHtmlHelp();

/// Shows a topic of a help file by its number; false if HTML Help can't. `owner` may be null. HtmlHelpA is
/// called for a path whose characters the system's code page has, and HtmlHelpW for others.
bool ShowHelpTopic(HWND owner, const std::wstring& file, std::int32_t topic);

}  // namespace plotsmith::windows
