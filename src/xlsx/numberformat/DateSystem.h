#pragma once

#include <cstdint>

namespace plotsmith::xlsx {

/// How the workbook counts days: 1 is 1 January 1900 (with the phantom 29 February 1900), or 0 is 1 January
/// 1904.
enum class DateSystem { k1900, k1904 };

// In the system of 1900:
/// 31 December 9999, the last day of either system.
inline constexpr std::int32_t kLastSerial = 2'958'465;
/// The day that the system of 1904 calls 0.
inline constexpr std::int32_t kSerialOf1904 = 1462;
/// 1 January 1970.
inline constexpr std::int32_t kSerialOf1970 = 25'569;
/// 29 February 1900, which never was.
inline constexpr std::int32_t kPhantomLeapDay = 60;

/// What a system takes off a serial of the system of 1900.
constexpr std::int32_t SerialOffset(DateSystem dates) {
  return dates == DateSystem::k1904 ? kSerialOf1904 : 0;
}

}  // namespace plotsmith::xlsx
