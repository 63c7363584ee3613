#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {

/// Returns the serial number of an ISO 8601 date, time or both ("2011-02-03T04:05:06.5Z"), or nothing.
std::optional<double> ParseIsoDate(std::string_view text, DateSystem dates);

/// Returns the fields of a serial number that a format shows, in ISO 8601 to the millisecond: "2011-02-03",
/// "04:05:06.5", "2011-02-03T04:05:06.5", or "PT36H30M" for a duration. Returns an empty text for a number
/// outside the date system, and for 29 February 1900, which doesn't exist.
std::string IsoText(double serial, DateFields fields, DateSystem dates);

}  // namespace plotsmith::xlsx
