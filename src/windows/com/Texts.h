#pragma once

#include <string>
#include <string_view>

#include "windows/com/Windows.h"

/// @file
/// Texts between the system's UTF-8 and Windows' UTF-16. Halves of surrogate pairs pass both ways.
namespace plotsmith::com {

/// The text of `length` units.
std::string Utf8(const OLECHAR* text, std::size_t length);
/// The text of a BSTR, which may contain zeros; null is an empty text.
std::string Utf8(BSTR text);
/// A text for functions of Windows that take a terminating zero.
std::wstring Wide(std::string_view text);
/// A new BSTR, which the caller frees. Error 7 if there is no memory for it.
BSTR NewBstr(std::string_view text);

}  // namespace plotsmith::com
