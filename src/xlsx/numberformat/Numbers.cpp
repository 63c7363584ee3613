#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "xlsx/numberformat/Decimal.h"
#include "xlsx/numberformat/Program.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;

/// The mantissa and the exponent.
struct Scientific {
  Decimal mantissa;
  int exponent;
};

/// The exponent is a multiple of `period`, which is also the maximum number of digits before the decimal
/// point.
Scientific MakeScientific(const Decimal& number, int period, int decimals) {
  if (number.IsZero()) return {number, 0};
  const int highest = number.Highest();
  int exponent = highest - (highest % period + period) % period;
  for (;; exponent += period) {
    Scientific result{number, exponent};
    result.mantissa.Scale(-exponent);
    result.mantissa.Round(decimals);
    if (result.mantissa.IntegerDigits() <= period) return result;  // Rounding can change 9.99 to 10.0.
  }
}

/// Decides the meaning of a comma after a digit placeholder or the decimal point. If another digit follows
/// directly, the comma is a thousands separator. Otherwise, at the end of the integer part or of the number,
/// each comma divides by a thousand. `digitFollows` is true if any digit follows.
void SettleComma(Section& section, std::size_t index, bool inIntegers, bool digitFollows) {
  const auto& tokens = section.tokens;
  const Kind next = index + 1 < tokens.size() ? tokens[index + 1].kind : Kind::kLiteral;
  if (next == Kind::kDigit)
    section.grouping |= inIntegers;
  else if (!digitFollows || (inIntegers && next == Kind::kPoint))
    section.scale -= 3 * tokens[index].symbol;
}

/// Returns the index of the last digit placeholder before the exponent, or 0 if there is none. Returns
/// nothing if the section has several exponents.
std::optional<std::size_t> LastDigitOfMantissa(const std::vector<Token>& tokens) {
  bool inExponent = false;
  std::size_t lastDigit = 0;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::kExponent && std::exchange(inExponent, true)) return std::nullopt;
    if (tokens[i].kind == Kind::kDigit && !inExponent) lastDigit = i;
  }
  return lastDigit;
}

/// Assigns a digit placeholder to a part of the number, and counts it.
void SettleDigit(Section& section, Token& token, Kind part) {
  token.kind = part;
  int& count = part == Kind::kInteger   ? section.integers
               : part == Kind::kDecimal ? section.decimals
                                        : section.exponents;
  ++count;
}

/// Decides the meaning of a decimal point. The first one begins the decimals, and the others are literals.
/// Returns false for a point in the exponent.
bool SettlePoint(Token& token, Kind& part) {
  if (part == Kind::kExponentDigit) return false;
  if (part == Kind::kInteger) {
    part = Kind::kDecimal;
  } else {
    token.kind = Kind::kLiteral;
  }
  return true;
}

/// Decides the meaning of the tokens of a plain or scientific number.
bool ResolvePlainNumber(Section& section) {
  auto& tokens = section.tokens;
  const auto lastDigit = LastDigitOfMantissa(tokens);
  if (!lastDigit) return false;
  std::vector<Token> settled;
  settled.reserve(tokens.size());
  Kind part = Kind::kInteger;
  bool inDigits = false;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    Token token = tokens[i];
    const bool wasInDigits = std::exchange(inDigits, token.kind == Kind::kDigit);
    switch (token.kind) {
      case Kind::kDigit:
        SettleDigit(section, token, part);
        break;
      case Kind::kPoint:
        inDigits = part == Kind::kInteger;
        if (!SettlePoint(token, part)) return false;
        break;
      case Kind::kComma:
        if (wasInDigits && part != Kind::kExponentDigit) {
          SettleComma(section, i, part == Kind::kInteger, i < *lastDigit);
          continue;
        }
        token.kind = Kind::kLiteral;
        break;
      case Kind::kExponent:
        part = Kind::kExponentDigit;
        break;
      case Kind::kPercent:
        section.scale += 2;
        token.kind = Kind::kLiteral;
        break;
      case Kind::kSlash:
      case Kind::kPlainDigit:
        token.kind = Kind::kLiteral;
        break;
      default:
        break;
    }
    settled.push_back(token);
  }
  tokens = std::move(settled);
  const bool isScientific = part == Kind::kExponentDigit;
  section.kind = isScientific ? Section::Kind::kScientific : Section::Kind::kNumber;
  return !isScientific || section.exponents > 0;
}

}  // namespace

bool ResolveNumber(Section& section) {
  const std::size_t slash = FindFractionSlash(section.tokens);
  return slash < section.tokens.size() ? ResolveFraction(section, slash) : ResolvePlainNumber(section);
}

void AppendGeneral(std::string& out, double value) {
  if (!std::isfinite(value)) {
    out += "#NUM!";
    return;
  }
  if (value < 0) out += '-';
  const double magnitude = std::fabs(value);
  constexpr int kMostDigits = 11;  // 10 with a decimal point
  constexpr double kMostFixed = 1e11;
  if (magnitude < kMostFixed && magnitude == std::floor(magnitude)) {
    char text[kMostDigits + 1];
    out.append(text, std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(magnitude)).ptr);
    return;
  }
  const Decimal number(magnitude);
  const int highest = number.Highest();
  // Numbers below 1E-4 are written without an exponent only if no digit is lost.
  const int decimals = highest < 0 ? kMostDigits - 2 : std::max(kMostDigits - 2 - highest, 0);
  if (highest < kMostDigits && (highest >= -4 || -number.Lowest() <= decimals)) {
    Decimal rounded = number;
    rounded.Round(decimals);
    if (rounded.Highest() < kMostDigits) {
      rounded.AppendTo(out);
      return;
    }
  }
  const Scientific scientific = MakeScientific(number, 1, std::abs(highest) < 100 ? 5 : 4);
  scientific.mantissa.AppendTo(out);
  out += scientific.exponent < 0 ? "E-" : "E+";
  const int exponent = std::abs(scientific.exponent);
  if (exponent < 10) out += '0';
  Decimal(exponent).AppendTo(out);
}

namespace {

/// Writes a number into the tokens of a section, from left to right.
class NumberWriter {
 public:
  NumberWriter(std::string& out, const Section& section, const Scientific& number)
      : out_(out),
        section_(section),
        number_(number.mantissa),
        exponent_(number.exponent),
        exponentDigits_(std::abs(number.exponent)),
        digits_(IntegerDigits()),
        integers_(out, number_, digits_, section.integers, section.grouping),
        exponents_(out, exponentDigits_, exponentDigits_.IntegerDigits(), section.exponents, false) {}
  NumberWriter(const NumberWriter&) = delete;

  void Append(const Token& token) {
    switch (token.kind) {
      case Kind::kInteger:
        integers_.Next(token.symbol);
        break;
      case Kind::kPoint:
        if (section_.integers == 0) {
          for (int power = digits_ - 1; power >= 0; --power) out_ += number_.Digit(power);
        }
        out_ += '.';
        break;
      case Kind::kDecimal:
        AppendDecimal(token.symbol);
        break;
      case Kind::kExponent:
        out_ += 'E';
        exponentSign_ = exponent_ < 0 ? '-' : token.symbol == '+' ? '+' : '\0';
        break;
      case Kind::kExponentDigit:
        // There may be literals between the E and the exponent's sign.
        if (exponentSign_) out_ += exponentSign_;
        exponentSign_ = 0;
        exponents_.Next(token.symbol);
        break;
      default:
        out_ += section_.Text(token);
        break;
    }
  }

 private:
  /// In scientific format, a zero fills the integer part.
  int IntegerDigits() const {
    const bool fills = section_.kind == Section::Kind::kScientific && number_.IsZero();
    return fills ? std::max(section_.integers, 1) : number_.IntegerDigits();
  }

  void AppendDecimal(char placeholder) {
    if (!number_.IsZero() && decimalPower_ >= number_.Lowest()) {
      out_ += number_.Digit(decimalPower_);
    } else if (placeholder != '#') {
      out_ += placeholder == '0' ? '0' : ' ';
    }
    --decimalPower_;
  }

  std::string& out_;
  const Section& section_;
  const Decimal& number_;
  int exponent_;
  Decimal exponentDigits_;
  int digits_;  ///< before the decimal point
  IntegerWriter integers_, exponents_;
  char exponentSign_ = 0;  ///< 0 if there is none, or once it is written
  int decimalPower_ = -1;  ///< the power of ten of the next decimal
};

}  // namespace

void AppendNumberSection(std::string& out, const Section& section, double magnitude, bool negative) {
  Scientific number{Decimal(magnitude), 0};
  number.mantissa.Scale(section.scale);
  if (section.kind == Section::Kind::kScientific) {
    number = MakeScientific(number.mantissa, std::max(section.integers, 1), section.decimals);
  } else {
    number.mantissa.Round(section.decimals);
  }
  if (negative && !(section.hidesSignOfZero && number.mantissa.IsZero())) out += '-';
  NumberWriter writer(out, section, number);
  for (const Token& token : section.tokens) writer.Append(token);
}

}  // namespace plotsmith::xlsx
