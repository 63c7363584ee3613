#pragma once

#include <cstdint>
#include <string_view>

/// Windows' locale identifiers (MS-LCID) of POSIX locales.
namespace plotsmith::cli {

/// The identifier of "language[_TERRITORY][.codeset][@modifier]". A language without a territory, or with one
/// that has no identifier of its own here, gets that of its default territory. "C", "POSIX", "" and unknown
/// languages get 1033, English (United States).
std::int32_t LCIDOfLocale(std::string_view locale);

/// The locale of the user's characters, which the environment tells by setlocale's order for LC_CTYPE:
/// LC_ALL, LC_CTYPE, LANG. An empty variable counts as one that isn't set. "C" without any.
std::string_view UserLocale();

}  // namespace plotsmith::cli
