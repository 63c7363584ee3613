#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {

/// One step of writing a value. What a digit placeholder means is settled while parsing, so that writing is
/// one walk over the tokens. Each keeps its text, so that a sign without a meaning turns into a literal by
/// its kind.
struct Token {
  /// The meaning of a token.
  enum class Kind : std::uint8_t {
    kLiteral,
    kText,     // @
    kGeneral,  // the word General
    // Numbers; the placeholders keep their sign 0, # or ? in `symbol`.
    kInteger,
    kPoint,
    kDecimal,
    kExponent,  // E; `symbol` is the + or - behind it
    kExponentDigit,
    kNumerator,
    kDenominator,
    // Dates; `size` is the number of letters.
    kYear,
    kMonth,
    kDay,
    kHour,
    kMinute,
    kSecond,
    kSubsecond,
    kAmPm,  // the text holds both marks, "AM/PM"
    kEra,
    kEraYear,
    kBuddhistYear,
    // Only between reading a section and settling it.
    kDigit,       // 0, # or ? somewhere
    kPlainDigit,  // 1 to 9
    kComma,       // `symbol` of them in a row, which show as one
    kSlash,
    kPercent,
  };

  Kind kind = Kind::kLiteral;
  char symbol = 0;
  std::uint32_t begin = 0;  // of the text
  std::uint32_t size = 0;
};

/// A condition in brackets, such as [>=100].
struct Condition {
  /// The comparison of the value with the limit.
  enum class Operator : std::uint8_t { kLess, kLessEqual, kEqual, kNotEqual, kGreaterEqual, kGreater };

  Operator op = Operator::kEqual;
  double limit = 0;

  /// Returns true if the value meets the condition.
  bool Holds(double value) const;
};

/// The calendar of a section with dates.
enum class Calendar : std::uint8_t { kGregorian, kHijri };

/// What a format says about one class of values.
struct Section {
  /// What the section displays.
  enum class Kind : std::uint8_t { kLiteral, kGeneral, kText, kNumber, kScientific, kFraction, kDate };

  Kind kind = Kind::kLiteral;
  std::optional<Condition> condition;
  bool onlyNegative = false;     // no other number gets here, so that the minus sign goes without saying
  bool hidesSignOfZero = false;  // a number that shows zeros only shows no minus sign either
  std::vector<Token> tokens;
  std::string texts;  // of the tokens

  // Numbers.
  int scale = 0;  // the power of ten that percent signs and trailing commas multiply by
  int integers = 0;
  int decimals = 0;
  int exponents = 0;
  bool grouping = false;

  // Fractions.
  bool hasIntegerPart = false;
  int numerators = 0;
  int denominators = 0;
  std::int64_t fixedDenominator = 0;  // 0: the best one of so many digits
  std::size_t fractionBegin = 0;      // the tokens that stay blank beside a whole number
  std::size_t fractionEnd = 0;

  // Dates.
  Calendar calendar = Calendar::kGregorian;
  std::uint16_t language = 0;
  int yearOffset = 0;  // of a solar calendar with another first year
  int subseconds = 0;  // digits
  bool twelveHours = false;
  Token::Kind elapsed = Token::Kind::kLiteral;  // the unit that counts on instead of starting again

  /// The text of a token.
  std::string_view Text(const Token& token) const {
    return std::string_view(texts).substr(token.begin, token.size);
  }
};

/// The parsed code of a format.
struct NumberFormat::Program {
  std::vector<Section> numbers;  // at most three; the first whose condition holds
  std::optional<Section> text;

  /// Null if no section wants the value.
  const Section* Select(double value) const;
};

/// Null if the code is refused.
std::unique_ptr<NumberFormat::Program> ParseNumberFormat(std::string_view code);

/// Settle what the tokens of a section with date fields mean. False if they make no sense.
bool SettleDate(Section& section);
/// The same for a section with digit placeholders; a fraction is one with this slash.
bool SettleNumber(Section& section);
/// Assigns the tokens of a fraction, whose slash is at index `slash`. Returns false if they make no sense.
bool SettleFraction(Section& section, std::size_t slash);
/// The index of the slash that makes a section a fraction, behind the last token if there is none.
std::size_t FindFractionSlash(const std::vector<Token>& tokens);

/// `magnitude` isn't negative; `negative` asks for a minus sign.
void AppendNumberSection(std::string& out, const Section& section, double magnitude, bool negative);
/// Appends a number as a fraction. `magnitude` isn't negative.
void AppendFractionSection(std::string& out, const Section& section, double magnitude);
/// False if the value is none that this date system can show.
bool AppendDateSection(std::string& out, const Section& section, double magnitude, bool negative,
                       DateSystem dates);

}  // namespace plotsmith::xlsx
