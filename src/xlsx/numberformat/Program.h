#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {

/// A token of a section. The parser determines the meaning of each digit placeholder, and so a value is
/// written in one pass over the tokens. Each token keeps its text, because a symbol without a meaning becomes
/// a literal.
struct Token {
  /// The meaning of a token.
  enum class Kind : std::uint8_t {
    kLiteral,
    kText,     // @
    kGeneral,  // the word General
    // Numbers. Placeholders keep their character (0, # or ?) in `symbol`.
    kInteger,
    kPoint,
    kDecimal,
    kExponent,  // E; `symbol` is the + or - after it
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
    kAmPm,  // the text contains both marks, "AM/PM"
    kEra,
    kEraYear,
    kBuddhistYear,
    // These occur only while a section is parsed.
    kDigit,       // 0, # or ? in any position
    kPlainDigit,  // 1 to 9
    kComma,       // `symbol` is the number of adjacent commas, which are shown as one
    kSlash,
    kPercent,
  };

  Kind kind = Kind::kLiteral;  ///< The meaning.
  char symbol = 0;             ///< The character of a placeholder; see Kind.
  std::uint32_t begin = 0;     ///< The position of the text in Section::texts.
  std::uint32_t size = 0;      ///< The length of the text in bytes.
};

/// A condition in brackets, such as [>=100].
struct Condition {
  /// The comparison of the value with the limit.
  enum class Operator : std::uint8_t { kLess, kLessEqual, kEqual, kNotEqual, kGreaterEqual, kGreater };

  Operator op = Operator::kEqual;  ///< The comparison.
  double limit = 0;                ///< The number in the brackets.

  /// Returns true if the value meets the condition.
  bool Holds(double value) const;
};

/// The calendar of a section with dates.
enum class Calendar : std::uint8_t { kGregorian, kHijri };

/// A section of a format, which applies to one class of values.
struct Section {
  /// What the section displays.
  enum class Kind : std::uint8_t { kLiteral, kGeneral, kText, kNumber, kScientific, kFraction, kDate };

  /// What the section displays.
  Kind kind = Kind::kLiteral;
  /// The condition in brackets. It is absent if the section has none.
  std::optional<Condition> condition;
  /// Whether only negative numbers use the section, so that the minus sign is left out.
  bool onlyNegative = false;
  /// Whether a number whose displayed digits are all zeros has no minus sign.
  bool hidesSignOfZero = false;
  /// The tokens of the section, in the order of the format.
  std::vector<Token> tokens;
  /// The texts of all tokens, one after the other.
  std::string texts;

  /// @name Numbers
  ///@{
  /// The power of ten by which percent signs and trailing commas multiply the number.
  int scale = 0;
  /// The numbers of digit placeholders in the integer part, after the decimal point and in the exponent.
  int integers = 0;
  int decimals = 0;
  int exponents = 0;
  /// Whether the integer part has thousands separators.
  bool grouping = false;
  ///@}

  /// @name Fractions
  ///@{
  /// Whether the integer part is written before the fraction.
  bool hasIntegerPart = false;
  /// The numbers of digit placeholders in the numerator and in the denominator.
  int numerators = 0;
  int denominators = 0;
  /// The denominator that the format gives. If it is 0, the best denominator with at most `denominators`
  /// digits is used.
  std::int64_t fixedDenominator = 0;
  /// The index of the first token that is left blank for a whole number, and of the token after the last such
  /// token.
  std::size_t fractionBegin = 0;
  std::size_t fractionEnd = 0;
  ///@}

  /// @name Dates
  ///@{
  Calendar calendar = Calendar::kGregorian;
  /// The Windows language identifier in the format. 0 if there is none.
  std::uint16_t language = 0;
  /// The number to add to the year, for a solar calendar with another first year.
  int yearOffset = 0;
  /// The number of digits after the decimal point of the seconds.
  int subseconds = 0;
  /// Whether hours are written from 1 to 12.
  bool twelveHours = false;
  /// The unit that counts on beyond its usual maximum, or kLiteral if there is none.
  Token::Kind elapsed = Token::Kind::kLiteral;
  ///@}

  /// The text of a token.
  std::string_view Text(const Token& token) const {
    return std::string_view(texts).substr(token.begin, token.size);
  }
};

/// The parsed code of a format.
struct NumberFormat::Program {
  /// The sections for numbers, at most three. The first one whose condition is met applies.
  std::vector<Section> numbers;
  /// The section for texts. It is absent if the format has none.
  std::optional<Section> text;

  /// Returns the section for a value; null if there is none.
  const Section* Select(double value) const;
};

/// Parses a code; returns null for an invalid one.
std::unique_ptr<NumberFormat::Program> ParseNumberFormat(std::string_view code);

/// Determines the meaning of the tokens in a section with dates. Returns false if they make no sense.
bool ResolveDate(Section& section);
/// Determines the meaning of the tokens in a section with a number. Returns false if they make no sense.
bool ResolveNumber(Section& section);
/// Assigns the tokens of a fraction, whose slash is at index `slash`. Returns false if they make no sense.
bool ResolveFraction(Section& section, std::size_t slash);
/// The index of the slash that makes a section a fraction; the number of tokens if there is none.
std::size_t FindFractionSlash(const std::vector<Token>& tokens);

/// Appends a number. `magnitude` isn't negative; `negative` adds a minus sign.
void AppendNumberSection(std::string& out, const Section& section, double magnitude, bool negative);
/// Appends a number as a fraction. `magnitude` isn't negative.
void AppendFractionSection(std::string& out, const Section& section, double magnitude);
/// Appends a date. Returns false if the date system can't show the value.
bool AppendDateSection(std::string& out, const Section& section, double magnitude, bool negative,
                       DateSystem dates);

}  // namespace plotsmith::xlsx
