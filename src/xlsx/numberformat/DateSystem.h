#pragma once

#include <cstdint>

namespace plotsmith::xlsx {

/// The date system of a workbook. In the 1900 system, serial number 1 is 1 January 1900, and there is a 29
/// February 1900. In the 1904 system, serial number 0 is 1 January 1904.
enum class DateSystem { k1900, k1904 };

// Serial numbers of the 1900 date system:
/// 31 December 9999, the last day of both systems.
inline constexpr std::int32_t kLastSerial = 2'958'465;
/// Day 0 of the 1904 system.
inline constexpr std::int32_t kSerialOf1904 = 1462;
/// 1 January 1970.
inline constexpr std::int32_t kSerialOf1970 = 25'569;
/// 29 February 1900, which doesn't exist.
inline constexpr std::int32_t kPhantomLeapDay = 60;

/// The difference between a serial number of the 1900 system and that of the given system.
constexpr std::int32_t SerialOffset(DateSystem dates) {
  return dates == DateSystem::k1904 ? kSerialOf1904 : 0;
}

}  // namespace plotsmith::xlsx
