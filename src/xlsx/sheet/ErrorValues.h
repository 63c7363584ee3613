#pragma once

#include <array>
#include <string_view>
#include <utility>

namespace plotsmith::xlsx {

/// The error values as cells show them, with Excel's numbers (XlCVError).
inline constexpr std::array<std::pair<std::string_view, int>, 11> kErrorValues = {{{"#NULL!", 2000},
                                                                                   {"#DIV/0!", 2007},
                                                                                   {"#VALUE!", 2015},
                                                                                   {"#REF!", 2023},
                                                                                   {"#NAME?", 2029},
                                                                                   {"#NUM!", 2036},
                                                                                   {"#N/A", 2042},
                                                                                   {"#GETTING_DATA", 2043},
                                                                                   {"#SPILL!", 2045},
                                                                                   {"#CALC!", 2050},
                                                                                   {"#FIELD!", 2049}}};

/// Returns the number of an error value; 2042 (#N/A) for an unknown text.
constexpr int ErrorNumber(std::string_view text) {
  for (const auto& [shown, number] : kErrorValues) {
    if (shown == text) return number;
  }
  return 2042;
}

/// Returns the text of an error value; "#N/A" for an unknown number.
constexpr std::string_view ErrorText(int number) {
  for (const auto& [shown, known] : kErrorValues) {
    if (known == number) return shown;
  }
  return "#N/A";
}

}  // namespace plotsmith::xlsx
