#include "runtime/Variant.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>

#include "runtime/Ascii.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith::runtime {
namespace {

using ascii::IsDigit;

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Converts digits with an optional point and exponent. Returns infinity if the number is too large.
/// from_chars doesn't depend on the locale.
double DecimalValue(std::string text) {
  for (char& c : text) {
    if (c == 'd' || c == 'D' || c == 'E') c = 'e';
  }
  double value = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc::result_out_of_range)
    return value;
  // The number is out of range. The position of the first digit that isn't 0 decides whether it is too large
  // or too small.
  const auto mark = text.find('e');
  long long exponent = 0;
  if (mark != std::string::npos) {
    const auto parsed = std::from_chars(text.data() + mark + 1, text.data() + text.size(), exponent);
    if (parsed.ec != std::errc()) return text[mark + 1] == '-' ? 0 : std::numeric_limits<double>::infinity();
    constexpr long long kBeyond = 1LL << 40;  // More than the number of digits in any text.
    exponent = std::clamp(exponent, -kBeyond, kBeyond);
  }
  const std::string_view mantissa = std::string_view(text).substr(0, mark);
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  const auto first = mantissa.find_first_not_of("0.");
  const auto magnitude = static_cast<long long>(point) - static_cast<long long>(first) + exponent;
  return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

/// Converts digits in base 8 or 16. 32 bits are interpreted with sign. Returns nothing if the number doesn't
/// fit.
std::optional<double> RadixValue(std::string_view digits) {
  const int base = (digits[0] == 'h' || digits[0] == 'H') ? 16 : 8;
  digits.remove_prefix(1);
  const bool isLong = digits.ends_with('&');
  if (isLong) digits.remove_suffix(1);
  std::uint32_t bits = 0;
  const auto [end, status] = std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
  if (status != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  // Up to four hexadecimal digits are a signed 16-bit number, unless they end with "&".
  if (base == 16 && digits.size() <= 4 && !isLong) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

/// The range of dates in the language: 1 January 100 to 31 December 9999.
constexpr double kFirstDay = -657434, kLastDay = 2958465;
constexpr std::int64_t kDaySeconds = 86400;
constexpr std::int32_t kDaysTo1970 = 25569;

/// Formats a date as the short date and the long time of the United States. Either is left out if it is zero.
std::string DateText(double serial) {
  double days = std::trunc(serial);
  if (!(days >= kFirstDay && days <= kLastDay)) throw RuntimeError(error::kTypeMismatch);
  auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(serial - days) * kDaySeconds));
  if (seconds == kDaySeconds) {
    days += 1;
    seconds = 0;
  }
  std::string text;
  if (days != 0) {
    const std::chrono::sys_days day{std::chrono::days(static_cast<std::int32_t>(days) - kDaysTo1970)};
    const std::chrono::year_month_day date{day};
    text = std::to_string(static_cast<unsigned>(date.month())) + "/" +
           std::to_string(static_cast<unsigned>(date.day())) + "/" +
           std::to_string(static_cast<int>(date.year()));
  }
  if (days == 0 || seconds != 0) {
    std::array<char, 32> time{};
    const std::chrono::hh_mm_ss clock{std::chrono::seconds(seconds)};
    const auto hour = static_cast<int>(clock.hours().count());
    std::snprintf(time.data(), time.size(), "%d:%02d:%02d %s", hour % 12 == 0 ? 12 : hour % 12,
                  static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
                  hour < 12 ? "AM" : "PM");
    if (!text.empty()) text += ' ';
    text += time.data();
  }
  return text;
}

}  // namespace

std::string NumberText(double value) {
  if (value == 0) return "0";
  // The number is rounded once to 15 digits. No printf format has the language's layout, so the digits are
  // arranged here.
  std::array<char, 40> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  if (!IsDigit(scientific[0])) return value < 0 ? "-1.#INF" : std::isnan(value) ? "-1.#IND" : "1.#INF";
  const auto mark = scientific.find('e');
  int exponent = 0;
  const char* exponentText = buffer.data() + mark + (scientific[mark + 1] == '+' ? 2 : 1);
  std::from_chars(exponentText, end, exponent);
  std::string digits;
  for (char c : scientific.substr(0, mark)) {
    if (IsDigit(c)) digits += c;
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  const int count = static_cast<int>(digits.size());

  std::string text = value < 0 ? "-" : "";
  if (exponent >= 15 || (exponent < 0 && count - exponent - 1 > 15)) {
    text += digits[0];
    if (count > 1) text.append(".").append(digits, 1);
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
  }
  if (exponent < 0) {
    return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  }
  if (count <= exponent + 1) {
    return text + digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
  }
  return text + digits.substr(0, static_cast<std::size_t>(exponent) + 1) + "." +
         digits.substr(static_cast<std::size_t>(exponent) + 1);
}

namespace {

/// Whether digits may be grouped by commas.
enum class Separators { kNone, kThousands };

/// Reads the number whose digits begin at `i`. Returns infinity if it is too large, and nothing if there is
/// no digit. Moves `i` past the number. An exponent belongs to the number only if it has digits.
std::optional<double> NumberAt(std::string_view text, std::size_t& i, Separators separators) {
  const bool commas = separators == Separators::kThousands;
  const auto at = [&](std::size_t p) { return p < text.size() ? text[p] : '\0'; };
  std::string decimal;
  bool digits = false;
  for (; IsDigit(at(i)) || (commas && digits && at(i) == ','); ++i) {
    if (at(i) == ',') continue;
    decimal += at(i);
    digits = true;
  }
  if (at(i) == '.') {
    decimal += at(i++);
    for (; IsDigit(at(i)); ++i) {
      decimal += at(i);
      digits = true;
    }
  }
  if (!digits) return {};
  if (i < text.size() && std::string_view("eEdD").find(text[i]) != std::string_view::npos) {
    const bool sign = at(i + 1) == '+' || at(i + 1) == '-';
    std::size_t j = sign ? i + 2 : i + 1;
    if (IsDigit(at(j))) {
      decimal += at(i + 1) == '-' ? "e-" : "e";
      for (; IsDigit(at(j)); ++j) decimal += at(j);
      i = j;
    }
  }
  if (decimal[0] == '.') decimal.insert(0, "0");
  return DecimalValue(decimal);
}

/// Reads a number with a sign, parentheses or a currency sign around it.
class NumberReader {
 public:
  explicit NumberReader(std::string_view text) : text_(text) {}

  /// Returns the number that the whole text denotes. Returns infinity if it is too large.
  std::optional<double> Read() {
    do {  // Prefixes may be in any order, each at most once.
      SkipSpace();
    } while (TakeSign() || TakeOpening() || TakeCurrency());
    if (Next() == '&' && !hasSign_ && !hasCurrency_) return ReadRadix();

    const auto number = NumberAt(text_, at_, Separators::kThousands);
    if (!number) return {};

    do {  // This also applies to suffixes.
      SkipSpace();
    } while (TakeClosing() || TakeSign() || TakeCurrency());
    if (isOpen_ || at_ != text_.size()) return {};
    return isNegative_ ? -*number : *number;
  }

 private:
  char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  void SkipSpace() {
    while (at_ < text_.size() && IsSpace(text_[at_])) ++at_;
  }
  bool TakeSign() {
    if (hasSign_ || (Next() != '+' && Next() != '-')) return false;
    hasSign_ = true;
    isNegative_ = text_[at_++] == '-';
    return true;
  }
  /// Takes the parenthesis before a negative number, which then has no other sign.
  bool TakeOpening() {
    if (hasSign_ || Next() != '(') return false;
    hasSign_ = isNegative_ = isOpen_ = true;
    ++at_;
    return true;
  }
  bool TakeClosing() {
    if (!isOpen_ || Next() != ')') return false;
    isOpen_ = false;
    ++at_;
    return true;
  }
  bool TakeCurrency() {
    if (hasCurrency_ || Next() != '$') return false;
    hasCurrency_ = true;
    ++at_;
    return true;
  }
  /// Returns the number after a "&", in base 8 or 16.
  std::optional<double> ReadRadix() const {
    std::string_view rest = text_.substr(at_ + 1);
    while (!rest.empty() && IsSpace(rest.back())) rest.remove_suffix(1);
    if (rest.size() < 2 || std::string_view("hHoO").find(rest[0]) == std::string_view::npos) return {};
    return RadixValue(rest);
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool hasSign_ = false, isNegative_ = false, isOpen_ = false, hasCurrency_ = false;
};

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
  const auto number = NumberReader(text).Read();
  return number && std::isfinite(*number) ? number : std::nullopt;
}

bool IsNumeric(std::string_view text) { return ParseNumber(text).has_value(); }

bool IsNumeric(const Variant& value) {
  if (const auto* text = value.If<std::string>()) return IsNumeric(std::string_view(*text));
  return value.IsEmpty() || value.Is<bool>() || value.Is<std::int32_t>() || value.Is<double>();
}

double Val(std::string_view source) {
  std::string text;
  for (char c : source) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') text += c;
  }
  if (text.size() > 2 && text[0] == '&') {
    std::size_t length = 2;
    const bool hexadecimal = text[1] == 'h' || text[1] == 'H';
    const std::string_view allowed = hexadecimal ? "0123456789abcdefABCDEF" : "01234567";
    while (length < text.size() && allowed.find(text[length]) != std::string_view::npos) ++length;
    if (!hexadecimal && text[1] != 'o' && text[1] != 'O') return 0;
    if (length < text.size() && text[length] == '&') ++length;
    return RadixValue(std::string_view(text).substr(1, length - 1)).value_or(0);
  }
  const bool minus = text.starts_with('-');
  std::size_t i = minus || text.starts_with('+') ? 1 : 0;
  const auto number = NumberAt(text, i, Separators::kNone);
  if (!number) return 0;
  if (!std::isfinite(*number)) throw RuntimeError(error::kOverflow);
  return minus ? -*number : *number;
}

double Val(const Variant& value) {
  if (const auto* number = value.If<double>()) return *number;
  return Val(std::string_view(CStr(value)));
}

double Sum(double a, double b) {
  const double sum = a + b;
  if (!std::isfinite(sum)) throw RuntimeError(error::kOverflow);
  return sum;
}

std::string CStr(const Variant& value) {
  if (const auto* text = value.If<std::string>()) return *text;
  if (const auto* number = value.If<double>()) return NumberText(*number);
  if (const auto* whole = value.If<std::int32_t>()) return std::to_string(*whole);
  if (const auto* truth = value.If<bool>()) return *truth ? "True" : "False";
  if (const auto* date = value.If<Variant::Date>()) return DateText(date->serial);
  if (value.IsNull()) throw RuntimeError(error::kInvalidNull);
  if (value.Is<Variant::Error>()) throw RuntimeError(error::kTypeMismatch);
  return {};
}

double CDbl(const Variant& value) {
  if (const auto* number = value.If<double>()) return *number;
  if (const auto* whole = value.If<std::int32_t>()) return *whole;
  if (const auto* truth = value.If<bool>()) return *truth ? -1 : 0;
  if (const auto* date = value.If<Variant::Date>()) return date->serial;
  if (const auto* text = value.If<std::string>()) {
    const auto number = NumberReader(*text).Read();
    if (!number) throw RuntimeError(error::kTypeMismatch);
    if (!std::isfinite(*number)) throw RuntimeError(error::kOverflow);
    return *number;
  }
  if (value.IsNull()) throw RuntimeError(error::kInvalidNull);
  if (value.Is<Variant::Error>()) throw RuntimeError(error::kTypeMismatch);
  return 0;
}

std::int32_t CLng(const Variant& value) {
  if (const auto* whole = value.If<std::int32_t>()) return *whole;
  const double number = CDbl(value);
  const double rounded = std::nearbyint(number);  // The default rounding mode rounds halves to even.
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    throw RuntimeError(error::kOverflow);
  }
  return static_cast<std::int32_t>(rounded);
}

bool CBool(const Variant& value) {
  if (const auto* truth = value.If<bool>()) return *truth;
  if (const auto* text = value.If<std::string>()) {
    if (EqualsIgnoreCase(*text, "True") || *text == "#TRUE#") return true;
    if (EqualsIgnoreCase(*text, "False") || *text == "#FALSE#") return false;
  }
  return CDbl(value) != 0;
}

}  // namespace plotsmith::runtime
