#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {

/// The serial of a cell's ISO 8601 date, time, or both ("2011-02-03T04:05:06.5Z").
std::optional<double> ParseIsoDate(std::string_view text, DateSystem dates);

/// What a format shows of a serial, in ISO 8601 to the millisecond: "2011-02-03", "04:05:06.5",
/// "2011-02-03T04:05:06.5", or "PT36H30M" for a duration. Empty for a number that is no day of the system, as
/// 29 February 1900 is none of the calendar either.
std::string IsoText(double serial, DateFields fields, DateSystem dates);

}  // namespace plotsmith::xlsx
