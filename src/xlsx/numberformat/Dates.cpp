#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <optional>

#include "xlsx/numberformat/Program.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;
using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int64_t kDaySeconds = 24 * 60 * 60;
constexpr sys_days kSerialZero{std::chrono::year{1899} / 12 / 30};  // serial 0, from March 1900 on

constexpr std::string_view kMonths[] = {"January",   "February", "March",    "April",
                                        "May",       "June",     "July",     "August",
                                        "September", "October",  "November", "December"};
constexpr std::string_view kHijriMonths[] = {"Muharram", "Safar",     "Rabi I",        "Rabi II",
                                             "Jumada I", "Jumada II", "Rajab",         "Sha'ban",
                                             "Ramadan",  "Shawwal",   "Dhu al-Qi'dah", "Dhu al-Hijjah"};
constexpr std::string_view kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                          "Thursday", "Friday", "Saturday"};

struct Era {
  std::uint16_t language;
  sys_days begin;
  std::string_view names[3];  // by the number of letters
};

/// The latest era comes first.
constexpr Era kEras[] = {
    {0x411, sys_days{std::chrono::year{2019} / 5 / 1}, {"R", "令", "令和"}},
    {0x411, sys_days{std::chrono::year{1989} / 1 / 8}, {"H", "平", "平成"}},
    {0x411, sys_days{std::chrono::year{1926} / 12 / 25}, {"S", "昭", "昭和"}},
    {0x411, sys_days{std::chrono::year{1912} / 7 / 30}, {"T", "大", "大正"}},
    {0x411, sys_days{std::chrono::year{1868} / 1 / 25}, {"M", "明", "明治"}},
    {0x404, sys_days{std::chrono::year{1912} / 1 / 1}, {"", "民國", "中華民國"}},
};

int Year(sys_days day) { return static_cast<int>(std::chrono::year_month_day{day}.year()); }

struct Date {
  int year;
  int month;  // from 1
  int day;
  sys_days point;  // the real day next to it, if the date is a phantom
};

Date GregorianDate(std::int64_t serial) {
  // In January and February 1900 the serial number is one lower, because the phantom day comes after them.
  const sys_days point = kSerialZero + days{serial <= kPhantomLeapDay ? serial + 1 : serial};
  if (serial == 0) return {1900, 1, 0, point};
  if (serial == kPhantomLeapDay) return {1900, 2, 29, point};
  const std::chrono::year_month_day date{point};
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())), point};
}

/// Converts a day to the arithmetical Hijri calendar. Its months have 30 and 29 days alternately, and eleven
/// years out of thirty have an additional day.
Date HijriDate(std::int64_t serial) {
  constexpr sys_days kEpoch{std::chrono::year{622} / 7 / 18};
  constexpr std::int64_t kCycleYears = 30;
  constexpr std::int64_t kCycleDays = 10631;
  const sys_days point = GregorianDate(std::max<std::int64_t>(serial, 1)).point;
  const std::int64_t since = (point - kEpoch).count();
  const auto yearStart = [](std::int64_t year) { return 354 * (year - 1) + (11 * year + 3) / kCycleYears; };
  std::int64_t year = since * kCycleYears / kCycleDays + 1;
  if (yearStart(year + 1) <= since) ++year;
  if (yearStart(year) > since) --year;
  const std::int64_t day = since - yearStart(year);
  // The additional day belongs to the last month.
  const std::int64_t month = std::min<std::int64_t>(day * 2 / 59, 11);
  return {static_cast<int>(year), static_cast<int>(month + 1),
          static_cast<int>(day - (59 * month + 1) / 2 + 1), point};
}

const Era* FindEra(std::uint16_t language, sys_days day) {
  const auto* era = std::find_if(std::begin(kEras), std::end(kEras), [&](const Era& candidate) {
    return candidate.language == language && candidate.begin <= day;
  });
  return era == std::end(kEras) ? nullptr : era;
}

/// A moment, rounded to the precision that the section shows.
struct Moment {
  Date date;
  int weekday;            // 0 for Sunday
  std::int64_t second;    // of the day
  std::int64_t elapsed;   // seconds since day 0
  std::int64_t fraction;  // of a second, with as many digits as the section shows
  Calendar calendar;
};

void AppendInteger(std::string& out, std::int64_t number, std::uint32_t leastDigits) {
  char text[24];
  char* const end = std::to_chars(text, text + sizeof text, number).ptr;
  const auto size = static_cast<std::uint32_t>(end - text);
  if (size < leastDigits) out.append(leastDigits - size, '0');
  out.append(text, end);
}

std::int64_t PowerOfTen(int exponent) {
  std::int64_t power = 1;
  while (exponent-- > 0) power *= 10;
  return power;
}

void AppendMonth(std::string& out, const Moment& moment, std::uint32_t letters) {
  const bool isHijri = moment.calendar == Calendar::kHijri;
  const std::string_view name = (isHijri ? kHijriMonths : kMonths)[moment.date.month - 1];
  if (letters < 3)
    AppendInteger(out, moment.date.month, letters);
  else if (letters == 3 && !isHijri)
    out += name.substr(0, 3);
  else
    out += letters == 5 ? name.substr(0, 1) : name;
}

void AppendDay(std::string& out, const Moment& moment, std::uint32_t letters) {
  if (letters < 3)
    AppendInteger(out, moment.date.day, letters);
  else
    out += letters == 3 ? kWeekdays[moment.weekday].substr(0, 3) : kWeekdays[moment.weekday];
}

void AppendYear(std::string& out, int year, bool isLong) {
  AppendInteger(out, isLong ? year : year % 100, isLong ? 4 : 2);
}

void AppendHour(std::string& out, const Section& section, const Moment& moment, std::uint32_t letters) {
  std::int64_t hour = moment.second / 3600;
  if (section.elapsed == Kind::kHour)
    hour = moment.elapsed / 3600;
  else if (section.twelveHours)
    hour = (hour + 11) % 12 + 1;
  AppendInteger(out, hour, letters);
}

/// Appends an era, or a year that is counted in one. A date before the first era has a year of the calendar.
void AppendEra(std::string& out, const Section& section, const Token& token, const Moment& moment) {
  const Era* era = FindEra(section.language, moment.date.point);
  if (token.kind == Kind::kEra) {
    if (era) out += era->names[std::min<std::uint32_t>(token.size, 3) - 1];
  } else if (era) {
    AppendInteger(out, Year(moment.date.point) - Year(era->begin) + 1, token.size);
  } else {
    AppendYear(out, moment.date.year + section.yearOffset, true);
  }
}

/// Appends a minute, a second or a part of one.
void AppendTime(std::string& out, const Section& section, const Token& token, const Moment& moment) {
  const bool isElapsed = section.elapsed == token.kind;
  if (token.kind == Kind::kMinute) {
    AppendInteger(out, isElapsed ? moment.elapsed / 60 : moment.second / 60 % 60, token.size);
  } else if (token.kind == Kind::kSecond) {
    AppendInteger(out, isElapsed ? moment.elapsed : moment.second % 60, token.size);
  } else {
    out += '.';
    AppendInteger(out, moment.fraction / PowerOfTen(section.subseconds - static_cast<int>(token.size)),
                  token.size);
  }
}

/// Appends the mark for the half of the day. `marks` contains both marks, such as "AM/PM".
void AppendDayHalf(std::string& out, std::string_view marks, const Moment& moment) {
  const std::size_t slash = marks.find('/');
  out += moment.second < kDaySeconds / 2 ? marks.substr(0, slash) : marks.substr(slash + 1);
}

void AppendDateToken(std::string& out, const Section& section, const Token& token, const Moment& moment) {
  switch (token.kind) {
    case Kind::kYear:
      return AppendYear(out, moment.date.year + section.yearOffset, token.size > 2);
    case Kind::kBuddhistYear:
      return AppendYear(out, moment.date.year + 543, token.size > 2);
    case Kind::kEraYear:
    case Kind::kEra:
      return AppendEra(out, section, token, moment);
    case Kind::kMonth:
      return AppendMonth(out, moment, token.size);
    case Kind::kDay:
      return AppendDay(out, moment, token.size);
    case Kind::kHour:
      return AppendHour(out, section, moment, token.size);
    case Kind::kMinute:
    case Kind::kSecond:
    case Kind::kSubsecond:
      return AppendTime(out, section, token, moment);
    case Kind::kAmPm:
      return AppendDayHalf(out, section.Text(token), moment);
    default:
      out += section.Text(token);
  }
}

bool IsField(Kind kind) { return kind >= Kind::kYear && kind <= Kind::kSecond; }

/// Distinguishes minutes from months: m and mm are minutes after hours, before seconds, and after seconds
/// with a colon.
void FindMinutes(Section& section) {
  auto& tokens = section.tokens;
  Kind next = Kind::kLiteral;
  std::vector<bool> beforeSeconds(tokens.size());
  for (std::size_t i = tokens.size(); i-- > 0;) {
    beforeSeconds[i] = next == Kind::kSecond;
    if (IsField(tokens[i].kind)) next = tokens[i].kind;
  }
  Kind previous = Kind::kLiteral;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    Token& token = tokens[i];
    const auto behindSeconds = [&] {
      return i > 1 && tokens[i - 2].kind == Kind::kSecond && tokens[i - 1].kind == Kind::kLiteral &&
             section.Text(tokens[i - 1]) == ":";
    };
    if (token.kind == Kind::kMonth && token.size < 3 &&
        (previous == Kind::kHour || beforeSeconds[i] || behindSeconds()))
      token.kind = Kind::kMinute;
    if (IsField(token.kind)) previous = token.kind;
  }
}

/// Returns the largest number of equal letters that has a meaning of its own.
std::uint32_t MostSize(Kind kind) {
  switch (kind) {
    case Kind::kHour:
    case Kind::kMinute:
    case Kind::kSecond:
    case Kind::kEraYear:
      return 2;
    case Kind::kEra:
      return 3;
    case Kind::kYear:
    case Kind::kBuddhistYear:
    case Kind::kDay:
      return 4;
    case Kind::kMonth:
      return 5;
    default:
      return std::numeric_limits<std::uint32_t>::max();  // literal text
  }
}

/// Returns the number of zeros directly after a token.
std::uint32_t ZerosBehind(const std::vector<Token>& tokens, std::size_t index) {
  std::uint32_t zeros = 0;
  while (++index < tokens.size() && tokens[index].kind == Kind::kDigit && tokens[index].symbol == '0')
    ++zeros;
  return zeros;
}

/// Decides the meaning of a decimal point. A point with zeros after it shows fractions of a second after any
/// token. Returns false if there are too many zeros.
bool SettlePoint(Section& section, Token& token, std::uint32_t zeros) {
  constexpr std::uint32_t kMostSubseconds = 3;
  if (zeros > kMostSubseconds) return false;
  if (zeros == 0) {
    token.kind = Kind::kLiteral;
  } else {
    token = {Kind::kSubsecond, 0, 0, zeros};
    section.subseconds = std::max(section.subseconds, static_cast<int>(zeros));
  }
  return true;
}

/// Returns the moment of a serial number in a section's calendar; absent after the last day.
std::optional<Moment> MomentOf(const Section& section, double magnitude, DateSystem dates) {
  if (magnitude > static_cast<double>(kLastSerial + 1)) return std::nullopt;
  const double whole = std::floor(magnitude);
  // Seconds are rounded even if only minutes or days are shown. The fraction is first rounded to five digits,
  // because the binary value of a half second may be slightly too small.
  constexpr int kGuardDigits = 5;
  const auto guarded = static_cast<std::int64_t>(
      std::floor((magnitude - whole) * static_cast<double>(kDaySeconds * PowerOfTen(kGuardDigits)) + 0.5));
  const std::int64_t unit = PowerOfTen(kGuardDigits - section.subseconds);
  const std::int64_t perSecond = PowerOfTen(section.subseconds);
  const std::int64_t ticks =
      (guarded + unit / 2) / unit + static_cast<std::int64_t>(whole) * kDaySeconds * perSecond;

  Moment moment{};
  moment.fraction = ticks % perSecond;
  moment.elapsed = ticks / perSecond;
  moment.second = moment.elapsed % kDaySeconds;
  const std::int64_t serial = moment.elapsed / kDaySeconds + SerialOffset(dates);
  if (serial > kLastSerial) return std::nullopt;
  moment.calendar = section.calendar;
  moment.date = section.calendar == Calendar::kHijri ? HijriDate(serial) : GregorianDate(serial);
  moment.weekday = static_cast<int>((serial + 6) % 7);
  return moment;
}

}  // namespace

bool ResolveDate(Section& section) {
  section.kind = Section::Kind::kDate;
  FindMinutes(section);
  std::vector<Token> settled;
  settled.reserve(section.tokens.size());
  const auto& tokens = section.tokens;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    Token token = tokens[i];
    switch (token.kind) {
      case Kind::kPoint: {
        const std::uint32_t zeros = ZerosBehind(tokens, i);
        if (!SettlePoint(section, token, zeros)) return false;
        i += zeros;
        break;
      }
      case Kind::kDigit:
      case Kind::kExponent:
        return false;
      case Kind::kComma:
      case Kind::kSlash:
      case Kind::kPercent:
      case Kind::kPlainDigit:
        token.kind = Kind::kLiteral;
        break;
      case Kind::kAmPm:
        section.twelveHours = true;
        break;
      case Kind::kHour:
        // A format with elapsed minutes or seconds can't show hours, and one with elapsed seconds can't show
        // minutes.
        if (section.elapsed == Kind::kMinute || section.elapsed == Kind::kSecond) return false;
        break;
      case Kind::kMinute:
        if (section.elapsed == Kind::kSecond) return false;
        break;
      default:
        break;
    }
    if (token.kind != section.elapsed) token.size = std::min(token.size, MostSize(token.kind));
    settled.push_back(token);
  }
  section.tokens = std::move(settled);
  return true;
}

bool AppendDateSection(std::string& out, const Section& section, double magnitude, bool negative,
                       DateSystem dates) {
  const auto moment = MomentOf(section, magnitude, dates);
  if (!moment) return false;
  if (negative) out += '-';
  for (const Token& token : section.tokens) AppendDateToken(out, section, token, *moment);
  return true;
}

}  // namespace plotsmith::xlsx
