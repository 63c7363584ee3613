#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// Decodes a text of SpreadsheetML, which writes characters that XML can't contain or would change as _xHHHH_
/// (ST_Xstring).
std::string DecodeXString(std::string_view text);
/// Encodes a text for an element. Control characters, halves of surrogate pairs, U+FFFE, U+FFFF, carriage
/// returns and texts that look like such an escape become escapes; then XML's own escapes are added.
std::string EncodeXString(std::string_view text);

}  // namespace plotsmith::xlsx
