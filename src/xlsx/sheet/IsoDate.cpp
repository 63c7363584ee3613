#include "xlsx/sheet/IsoDate.h"

#include <chrono>

#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// Takes `count` digits off the front.
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

}  // namespace

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
    // both systems count from a day before 1970; 1900 has a 29 February of its own, serial 60
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
