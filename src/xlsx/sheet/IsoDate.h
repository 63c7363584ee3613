#pragma once

#include <optional>
#include <string_view>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::xlsx {

/// The serial of a cell's ISO 8601 date, time, or both ("2011-02-03T04:05:06.5Z").
std::optional<double> ParseIsoDate(std::string_view text, DateSystem dates);

}  // namespace plotsmith::xlsx
