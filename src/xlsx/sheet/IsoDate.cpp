#include "xlsx/sheet/IsoDate.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// Removes `count` digits from the beginning and returns their number.
std::optional<int> TakeDigits(std::string_view& text, std::size_t count) {
  if (text.size() < count) return std::nullopt;
  const std::string_view digits = text.substr(0, count);
  const auto value = xml::ParseInteger(digits);
  if (!value || digits.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  text.remove_prefix(count);
  return static_cast<int>(*value);
}

bool Take(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

std::optional<double> TakeTime(std::string_view& text) {
  const auto hour = TakeDigits(text, 2);
  if (!hour || !Take(text, ':')) return std::nullopt;
  const auto minute = TakeDigits(text, 2);
  if (!minute) return std::nullopt;
  double second = 0;
  if (Take(text, ':')) {
    const auto end = text.find_first_not_of("0123456789.");
    const auto value = xml::ParseDouble(text.substr(0, end));
    if (!value) return std::nullopt;
    second = *value;
    text.remove_prefix(end == std::string_view::npos ? text.size() : end);
  }
  return (*hour * 3600 + *minute * 60 + second) / 86400;
}

constexpr std::int64_t kSecond = 1000;  // milliseconds
constexpr std::int64_t kMinute = 60 * kSecond;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;

std::string TwoDigits(std::int64_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

/// Returns the fraction, such as ".5", without trailing zeros; empty for a whole second.
std::string FractionText(std::int64_t milliseconds) {
  if (milliseconds == 0) return {};
  std::string digits = std::to_string(kSecond + milliseconds).substr(1);
  digits.erase(digits.find_last_not_of('0') + 1);
  return "." + digits;
}

std::string TimeText(std::int64_t ofDay) {
  return TwoDigits(ofDay / kHour) + ":" + TwoDigits(ofDay % kHour / kMinute) + ":" +
         TwoDigits(ofDay % kMinute / kSecond) + FractionText(ofDay % kSecond);
}

/// Returns a duration without the parts that are zero.
std::string DurationText(std::int64_t milliseconds) {
  const std::int64_t rest = std::abs(milliseconds);
  std::string text = milliseconds < 0 ? "-PT" : "PT";
  if (rest >= kHour) text += std::to_string(rest / kHour) + "H";
  if (rest % kHour >= kMinute) text += std::to_string(rest % kHour / kMinute) + "M";
  if (rest % kMinute > 0 || rest == 0) {
    text += std::to_string(rest % kMinute / kSecond) + FractionText(rest % kSecond) + "S";
  }
  return text;
}

/// Returns the date of a day; empty if the date system doesn't have the day.
std::string DateText(std::int64_t day, DateSystem dates) {
  using namespace std::chrono;
  const bool is1900 = dates == DateSystem::k1900;
  std::int64_t serial = day + SerialOffset(dates);
  if (day < (is1900 ? 1 : 0) || serial > kLastSerial || (is1900 && serial == kPhantomLeapDay)) return {};
  if (is1900 && serial < kPhantomLeapDay) ++serial;
  const year_month_day date(sys_days(days(serial - kSerialOf1970)));
  return std::to_string(static_cast<int>(date.year())) + "-" +
         TwoDigits(static_cast<unsigned>(date.month())) + "-" + TwoDigits(static_cast<unsigned>(date.day()));
}

}  // namespace

std::string IsoText(double serial, DateFields fields, DateSystem dates) {
  // This is the last day that any format shows. The limit also prevents an overflow in the product below.
  if (fields == DateFields::kNone || !(std::fabs(serial) <= kLastSerial + 1)) return {};
  const auto milliseconds = static_cast<std::int64_t>(std::llround(serial * static_cast<double>(kDay)));
  if (fields == DateFields::kDuration) return DurationText(milliseconds);
  if (milliseconds < 0) return {};
  if (fields == DateFields::kTime) return TimeText(milliseconds % kDay);
  const std::string date = DateText(milliseconds / kDay, dates);
  if (fields == DateFields::kDate || date.empty()) return date;
  return date + "T" + TimeText(milliseconds % kDay);
}

std::optional<double> ParseIsoDate(std::string_view text, DateSystem dates) {
  using namespace std::chrono;
  double serial = 0;
  if (text.size() >= 3 && text[2] != ':') {
    const auto year = TakeDigits(text, 4);
    if (!year || !Take(text, '-')) return std::nullopt;
    const auto month = TakeDigits(text, 2);
    if (!month || !Take(text, '-')) return std::nullopt;
    const auto day = TakeDigits(text, 2);
    if (!day) return std::nullopt;
    const year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                              std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok()) return std::nullopt;
    // Both systems count from a day before 1970. The 1900 system has a 29 February 1900, serial number 60.
    const auto days = sys_days(date).time_since_epoch().count();
    serial = days + kSerialOf1970 - SerialOffset(dates);
    if (dates == DateSystem::k1900 && serial <= kPhantomLeapDay) serial -= 1;
    if (text.empty()) return serial;
    if (!Take(text, 'T')) return std::nullopt;
  }
  const auto time = TakeTime(text);
  if (!time || !(text.empty() || text == "Z")) return std::nullopt;
  return serial + *time;
}

}  // namespace plotsmith::xlsx
