#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "xlsx/numberformat/Decimal.h"
#include "xlsx/numberformat/Program.h"

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
/// `digitFollows` says whether any digit follows at all.
void SettleComma(Section& section, std::size_t index, bool inIntegers, bool digitFollows) {
  const auto& tokens = section.tokens;
  const Kind next = index + 1 < tokens.size() ? tokens[index + 1].kind : Kind::kLiteral;
  if (next == Kind::kDigit)
    section.grouping |= inIntegers;
  else if (!digitFollows || (inIntegers && next == Kind::kPoint))
    section.scale -= 3 * tokens[index].symbol;
}

/// Settles the tokens of a plain or a scientific number.
bool SettlePlainNumber(Section& section) {
  auto& tokens = section.tokens;
  std::size_t mantissaEnd = tokens.size();
  std::size_t lastDigit = 0;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::kExponent) {
      if (mantissaEnd < tokens.size()) return false;
      mantissaEnd = i;
    }
    if (tokens[i].kind == Kind::kDigit && mantissaEnd == tokens.size()) lastDigit = i;
  }

  std::vector<Token> settled;
  settled.reserve(tokens.size());
  Kind part = Kind::kInteger;
  bool inDigits = false;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    Token token = tokens[i];
    const bool wasInDigits = std::exchange(inDigits, token.kind == Kind::kDigit);
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
          inDigits = true;
        } else {
          token.kind = Kind::kLiteral;
        }
        break;
      case Kind::kComma:
        if (wasInDigits && part != Kind::kExponentDigit) {
          SettleComma(section, i, part == Kind::kInteger, i < lastDigit);
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

bool SettleNumber(Section& section) {
  const std::size_t slash = FindFractionSlash(section.tokens);
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
    out.append(text, std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(magnitude)).ptr);
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
  const bool isScientific = section.kind == Section::Kind::kScientific;
  int exponent = 0;
  int digits = 0;
  if (isScientific) {
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
  if (negative && !(section.hidesSignOfZero && number.IsZero())) out += '-';

  IntegerWriter integers(out, number, digits, section.integers, section.grouping);
  const Decimal exponentDigits(std::abs(exponent));
  IntegerWriter exponents(out, exponentDigits, exponentDigits.IntegerDigits(), section.exponents, false);
  char exponentSign = 0;
  int decimalPower = -1;
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
        if (!number.IsZero() && decimalPower >= number.Lowest())
          out += number.Digit(decimalPower);
        else if (token.symbol != '#')
          out += token.symbol == '0' ? '0' : ' ';
        --decimalPower;
        break;
      case Kind::kExponent:
        out += 'E';
        exponentSign = exponent < 0 ? '-' : token.symbol == '+' ? '+' : '\0';
        break;
      case Kind::kExponentDigit:
        // Literals may stand between the E and the sign.
        if (exponentSign) out += exponentSign;
        exponentSign = 0;
        exponents.Next(token.symbol);
        break;
      default:
        out += section.Text(token);
        break;
    }
  }
}

}  // namespace plotsmith::xlsx
