#include <algorithm>
#include <cmath>
#include <limits>

#include "xlsx/numberformat/Decimal.h"
#include "xlsx/numberformat/Program.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;

/// Assigns the tokens after the slash to the denominator, which is either placeholders or a number. Returns
/// the index of the token after it, or 0 if it is neither.
std::size_t SettleDenominator(Section& section, std::size_t begin) {
  auto& tokens = section.tokens;
  while (tokens[begin].kind == Kind::kLiteral) ++begin;
  std::size_t end = begin;
  const bool isFixed = tokens[begin].kind == Kind::kPlainDigit;
  constexpr std::int64_t kMost = 999'999'999;
  for (; end < tokens.size(); ++end) {
    Token& token = tokens[end];
    if (token.kind != Kind::kDigit && token.kind != Kind::kPlainDigit) break;
    if (isFixed) {
      if (token.symbol < '0' || token.symbol > '9') return 0;
      section.fixedDenominator = section.fixedDenominator * 10 + (token.symbol - '0');
      if (section.fixedDenominator > kMost) return 0;
    } else if (token.kind == Kind::kPlainDigit) {
      return 0;
    }
    token.kind = Kind::kDenominator;
    ++section.denominators;
  }
  return end;
}

/// Assigns the placeholders directly before the slash to the numerator, and returns the index of the first of
/// them. The placeholders before them are the integer part.
std::size_t SettleNumerator(Section& section, std::size_t slash) {
  auto& tokens = section.tokens;
  std::size_t numerator = slash;
  while (tokens[numerator - 1].kind != Kind::kDigit) --numerator;
  while (numerator > 0 && tokens[numerator - 1].kind == Kind::kDigit) {
    tokens[--numerator].kind = Kind::kNumerator;
    ++section.numerators;
  }
  return numerator;
}

struct Ratio {
  double numerator;
  double denominator;
};

/// Returns Excel's approximation of a number below one: the last convergent of its continued fraction whose
/// denominator is small enough. It isn't always the nearest fraction with such a denominator.
Ratio Approximate(double number, double most) {
  constexpr double kNothing = 1e-9;
  Ratio before{1, 0};
  Ratio last{0, 1};
  for (double rest = number; rest > kNothing;) {
    rest = 1 / rest;
    const double whole = std::floor(rest);
    const Ratio next{whole * last.numerator + before.numerator,
                     whole * last.denominator + before.denominator};
    if (next.denominator > most) break;
    before = last;
    last = next;
    rest -= whole;
  }
  return last;
}

/// A number as an integer part and a fraction below one, or as one fraction if the section has no integer
/// part.
struct MixedNumber {
  double whole;
  Ratio ratio;
};

MixedNumber MixedNumberOf(const Section& section, double magnitude) {
  constexpr int kMostScale = 300;
  magnitude = std::min(magnitude * std::pow(10, std::min(section.scale, kMostScale)),
                       std::numeric_limits<double>::max());
  double whole = std::floor(magnitude);
  const double rest = magnitude - whole;
  Ratio ratio{0, 1};
  if (section.fixedDenominator > 0) {
    ratio.denominator = static_cast<double>(section.fixedDenominator);
    ratio.numerator = std::floor(rest * ratio.denominator + 0.5);
  } else {
    constexpr int kMostDigits = 7;
    ratio = Approximate(rest, std::pow(10, std::min(section.denominators, kMostDigits)) - 1);
  }
  if (ratio.numerator >= ratio.denominator) {
    whole += 1;
    ratio.numerator = 0;
  }
  if (!section.hasIntegerPart) {
    ratio.numerator += whole * ratio.denominator;
    whole = 0;
  }
  return {whole, ratio};
}

/// Writes a denominator, left-aligned in its placeholders.
void AppendDenominator(std::string& out, const Section& section, std::size_t begin,
                       const Decimal& denominator) {
  int missing = section.denominators - denominator.IntegerDigits();
  int blanks = 0;
  for (std::size_t i = begin; missing > 0; ++i, --missing) {
    const char placeholder = section.tokens[i].symbol;
    if (placeholder == '0') out += '0';
    if (placeholder == '?') ++blanks;
  }
  denominator.AppendTo(out);
  out.append(static_cast<std::size_t>(blanks), ' ');
}

void AppendBlanks(std::string& out, std::string_view insteadOf) {
  for (const char c : insteadOf) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) out += ' ';
  }
}

}  // namespace

// Finds the slash of a fraction. Only literals may be between the slash and the placeholders before it, and
// between the slash and the denominator.
std::size_t FindFractionSlash(const std::vector<Token>& tokens) {
  bool behindDigits = false;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::kDigit) behindDigits = true;
    if (tokens[i].kind == Kind::kPlainDigit) behindDigits = false;
    if (tokens[i].kind != Kind::kSlash || !behindDigits) continue;
    std::size_t next = i + 1;
    while (next < tokens.size() && tokens[next].kind == Kind::kLiteral) ++next;
    if (next < tokens.size() && (tokens[next].kind == Kind::kDigit || tokens[next].kind == Kind::kPlainDigit))
      return i;
    behindDigits = false;
  }
  return tokens.size();
}

bool ResolveFraction(Section& section, std::size_t slash) {
  auto& tokens = section.tokens;
  const std::size_t denominatorEnd = SettleDenominator(section, slash + 1);
  if (denominatorEnd == 0) return false;
  section.fractionEnd = denominatorEnd;
  tokens[slash].kind = Kind::kLiteral;
  const std::size_t numerator = SettleNumerator(section, slash);
  section.fractionBegin = numerator;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    Token& token = tokens[i];
    switch (token.kind) {
      case Kind::kDigit:
        if (i > numerator) return false;
        token.kind = Kind::kInteger;
        ++section.integers;
        section.fractionBegin = i + 1;
        break;
      case Kind::kComma:
        if (i > 0 && tokens[i - 1].kind == Kind::kInteger && i < numerator) {
          section.grouping = true;
          token.size = 0;
        }
        token.kind = Kind::kLiteral;
        break;
      case Kind::kPercent:
        section.scale += 2;
        token.kind = Kind::kLiteral;
        break;
      case Kind::kPlainDigit:
        token.kind = Kind::kLiteral;
        break;
      case Kind::kPoint:
      case Kind::kSlash:
      case Kind::kExponent:
        return false;
      default:
        break;
    }
  }
  section.hasIntegerPart = section.integers > 0;
  section.kind = Section::Kind::kFraction;
  return true;
}

void AppendFractionSection(std::string& out, const Section& section, double magnitude) {
  const auto [whole, ratio] = MixedNumberOf(section, magnitude);
  const bool isWhole = section.hasIntegerPart && ratio.numerator == 0;
  const Decimal integer(whole);
  const Decimal numerator(ratio.numerator);
  // A zero is shown if no fraction follows it.
  IntegerWriter integers(out, integer,
                         isWhole ? std::max(integer.IntegerDigits(), 1) : integer.IntegerDigits(),
                         section.integers, section.grouping);
  IntegerWriter numerators(out, numerator, std::max(numerator.IntegerDigits(), 1), section.numerators, false);
  bool denominatorDone = false;
  for (std::size_t i = 0; i < section.tokens.size(); ++i) {
    const Token& token = section.tokens[i];
    if (isWhole && i >= section.fractionBegin && i < section.fractionEnd) {
      AppendBlanks(out, token.kind == Kind::kLiteral ? section.Text(token) : " ");
    } else if (token.kind == Kind::kInteger) {
      integers.Next(token.symbol);
    } else if (token.kind == Kind::kNumerator) {
      numerators.Next(token.symbol);
    } else if (token.kind == Kind::kDenominator) {
      if (!denominatorDone) AppendDenominator(out, section, i, Decimal(ratio.denominator));
      denominatorDone = true;
    } else {
      out += section.Text(token);
    }
  }
}

}  // namespace plotsmith::xlsx
