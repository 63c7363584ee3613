#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// SpreadsheetML writes characters that XML can't hold, or would change, as _xHHHH_ (ST_Xstring).
std::string DecodeEscapes(std::string_view text);
/// The text as it goes into an element: escapes for control characters, carriage returns and what would read
/// as an escape, then XML's own.
std::string EncodeCellText(std::string_view text);

}  // namespace plotsmith::xlsx
