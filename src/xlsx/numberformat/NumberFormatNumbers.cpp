#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "xlsx/numberformat/NumberFormatDecimal.h"
#include "xlsx/numberformat/NumberFormatProgram.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;

/// What stands before the E, and the exponent.
struct Scientific {
  Decimal mantissa;
  int exponent;
};

/// `period` is what the exponent is a multiple of, and the most digits before the decimal point.
Scientific MakeScientific(const Decimal& number, int period, int decimals) {
  if (number.IsZero()) return {number, 0};
  const int highest = number.Highest();
  int exponent = highest - (highest % period + period) % period;
  for (;; exponent += period) {
    Scientific result{number, exponent};
    result.mantissa.Scale(-exponent);
    result.mantissa.Round(decimals);
    if (result.mantissa.IntegerDigits() <= period) return result;  // else 9.99 became 10.0
  }
}

/// Settles a comma behind a digit placeholder or the decimal point: a thousands separator if another digit
/// follows at once, else a division by a thousand for each, at the end of the integer part or of the number.
/// `digit_follows` says whether any digit follows at all.
void SettleComma(Section& section, size_t index, bool in_integers, bool digit_follows) {
  const auto& tokens = section.tokens;
  const Kind next = index + 1 < tokens.size() ? tokens[index + 1].kind : Kind::kLiteral;
  if (next == Kind::kDigit)
    section.grouping |= in_integers;
  else if (!digit_follows || (in_integers && next == Kind::kPoint))
    section.scale -= 3 * tokens[index].symbol;
}

/// Settles the tokens of a plain or a scientific number.
bool SettlePlainNumber(Section& section) {
  auto& tokens = section.tokens;
  size_t mantissa_end = tokens.size();
  size_t last_digit = 0;
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::kExponent) {
      if (mantissa_end < tokens.size()) return false;
      mantissa_end = i;
    }
    if (tokens[i].kind == Kind::kDigit && mantissa_end == tokens.size()) last_digit = i;
  }

  std::vector<Token> settled;
  settled.reserve(tokens.size());
  Kind part = Kind::kInteger;
  bool in_digits = false;
  for (size_t i = 0; i < tokens.size(); ++i) {
    Token token = tokens[i];
    const bool was_in_digits = std::exchange(in_digits, token.kind == Kind::kDigit);
    switch (token.kind) {
      case Kind::kDigit:
        token.kind = part;
        ++(part == Kind::kInteger   ? section.integers
           : part == Kind::kDecimal ? section.decimals
                                    : section.exponents);
        break;
      case Kind::kPoint:
        if (part == Kind::kExponentDigit) return false;
        if (part == Kind::kInteger) {
          part = Kind::kDecimal;
          in_digits = true;
        } else {
          token.kind = Kind::kLiteral;
        }
        break;
      case Kind::kComma:
        if (was_in_digits && part != Kind::kExponentDigit) {
          SettleComma(section, i, part == Kind::kInteger, i < last_digit);
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
  const bool is_scientific = part == Kind::kExponentDigit;
  section.kind = is_scientific ? Section::Kind::kScientific : Section::Kind::kNumber;
  return !is_scientific || section.exponents > 0;
}

}  // namespace

bool SettleNumber(Section& section) {
  const size_t slash = FindFractionSlash(section.tokens);
  return slash < section.tokens.size() ? SettleFraction(section, slash) : SettlePlainNumber(section);
}

void AppendGeneral(std::string& out, double value) {
  if (!std::isfinite(value)) {
    out += "#NUM!";
    return;
  }
  if (value < 0) out += '-';
  const double magnitude = std::fabs(value);
  constexpr int kMostDigits = 11;  // with a decimal point one less
  constexpr double kMostFixed = 1e11;
  if (magnitude < kMostFixed && magnitude == std::floor(magnitude)) {
    char text[kMostDigits + 1];
    out.append(text, std::to_chars(text, text + sizeof text, static_cast<int64_t>(magnitude)).ptr);
    return;
  }
  const Decimal number(magnitude);
  const int highest = number.Highest();
  // Below 1E-4 only what loses no digit is written out.
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

void AppendNumberSection(std::string& out, const Section& section, double magnitude, bool negative) {
  Decimal number(magnitude);
  number.Scale(section.scale);
  const bool is_scientific = section.kind == Section::Kind::kScientific;
  int exponent = 0;
  int digits = 0;
  if (is_scientific) {
    const int period = std::max(section.integers, 1);
    const Scientific scientific = MakeScientific(number, period, section.decimals);
    number = scientific.mantissa;
    exponent = scientific.exponent;
    // A scientific zero fills its integer part.
    digits = number.IsZero() ? period : number.IntegerDigits();
  } else {
    number.Round(section.decimals);
    digits = number.IntegerDigits();
  }
  if (negative && !(section.hides_sign_of_zero && number.IsZero())) out += '-';

  IntegerWriter integers(out, number, digits, section.integers, section.grouping);
  const Decimal exponent_digits(std::abs(exponent));
  IntegerWriter exponents(out, exponent_digits, exponent_digits.IntegerDigits(), section.exponents, false);
  char exponent_sign = 0;
  int decimal_power = -1;
  for (const Token& token : section.tokens) {
    switch (token.kind) {
      case Kind::kInteger:
        integers.Next(token.symbol);
        break;
      case Kind::kPoint:
        if (section.integers == 0) {
          for (int power = digits - 1; power >= 0; --power) out += number.Digit(power);
        }
        out += '.';
        break;
      case Kind::kDecimal:
        if (!number.IsZero() && decimal_power >= number.Lowest())
          out += number.Digit(decimal_power);
        else if (token.symbol != '#')
          out += token.symbol == '0' ? '0' : ' ';
        --decimal_power;
        break;
      case Kind::kExponent:
        out += 'E';
        exponent_sign = exponent < 0 ? '-' : token.symbol == '+' ? '+' : '\0';
        break;
      case Kind::kExponentDigit:
        // Literals may stand between the E and the sign.
        if (exponent_sign) out += exponent_sign;
        exponent_sign = 0;
        exponents.Next(token.symbol);
        break;
      default:
        out += section.Text(token);
        break;
    }
  }
}

}  // namespace plotsmith::xlsx
