#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// Decodes a text of SpreadsheetML. Characters that XML can't contain or would change are written as _xHHHH_
/// (ST_Xstring).
std::string DecodeXString(std::string_view text);
/// Encodes a text for an element. Control characters, unpaired surrogates, U+FFFE, U+FFFF, carriage returns
/// and texts that look like such an escape are written as _xHHHH_. Then XML's own escapes are added.
std::string EncodeXString(std::string_view text);

}  // namespace plotsmith::xlsx
