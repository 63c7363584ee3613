#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// SpreadsheetML writes characters that XML can't hold, or would change, as _xHHHH_ (ST_Xstring).
std::string DecodeXString(std::string_view text);
/// The text as it goes into an element: escapes for what XML can't hold (control characters, halves of
/// surrogate pairs, U+FFFE and U+FFFF), for carriage returns and for what would read as an escape, then XML's
/// own.
std::string EncodeXString(std::string_view text);

}  // namespace plotsmith::xlsx
