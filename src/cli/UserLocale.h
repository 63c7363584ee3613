#pragma once

#include <cstdint>
#include <string_view>

/// Windows locale identifiers (MS-LCID) of POSIX locales.
namespace plotsmith::cli {

/// Returns the identifier of a locale "language[_TERRITORY][.codeset][@modifier]". A language without a
/// territory, or with an unknown territory, gets the identifier of its default territory. "C", "POSIX", ""
/// and unknown languages give 1033, English (United States).
std::int32_t LCIDOfLocale(std::string_view locale);

/// Returns the name of the user's locale from the environment, in the order of setlocale for LC_CTYPE:
/// LC_ALL, LC_CTYPE, LANG. Empty variables are ignored. The default is "C".
std::string_view UserLocale();

}  // namespace plotsmith::cli
