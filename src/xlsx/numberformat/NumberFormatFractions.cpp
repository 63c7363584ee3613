#include <algorithm>
#include <cmath>
#include <limits>

#include "xlsx/numberformat/NumberFormatDecimal.h"
#include "xlsx/numberformat/NumberFormatProgram.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;

/// The denominator behind the slash: placeholders, or a number. Turns its tokens into what they are and
/// returns the index behind them, 0 if they are neither.
size_t SettleDenominator(Section& section, size_t begin) {
  auto& tokens = section.tokens;
  while (tokens[begin].kind == Kind::kLiteral) ++begin;
  size_t end = begin;
  const bool is_fixed = tokens[begin].kind == Kind::kPlainDigit;
  constexpr int64_t kMost = 999'999'999;
  for (; end < tokens.size(); ++end) {
    Token& token = tokens[end];
    if (token.kind != Kind::kDigit && token.kind != Kind::kPlainDigit) break;
    if (is_fixed) {
      if (token.symbol < '0' || token.symbol > '9') return 0;
      section.fixed_denominator = section.fixed_denominator * 10 + (token.symbol - '0');
      if (section.fixed_denominator > kMost) return 0;
    } else if (token.kind == Kind::kPlainDigit) {
      return 0;
    }
    token.kind = Kind::kDenominator;
    ++section.denominators;
  }
  return end;
}

struct Ratio {
  double numerator;
  double denominator;
};

/// Excel's approximation of a number below one: the last convergent of the continued fraction whose
/// denominator fits, which isn't always the nearest fraction that would.
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

/// Denominators stand left in their placeholders.
void AppendDenominator(std::string& out, const Section& section, size_t begin, const Decimal& denominator) {
  int missing = section.denominators - denominator.IntegerDigits();
  int blanks = 0;
  for (size_t i = begin; missing > 0; ++i, --missing) {
    const char placeholder = section.tokens[i].symbol;
    if (placeholder == '0') out += '0';
    if (placeholder == '?') ++blanks;
  }
  denominator.AppendTo(out);
  out.append(static_cast<size_t>(blanks), ' ');
}

void AppendBlanks(std::string& out, std::string_view instead_of) {
  for (const char c : instead_of) {
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) out += ' ';
  }
}

}  // namespace

// Only literals may stand between the slash, the placeholders before it and the denominator behind it.
size_t FindFractionSlash(const std::vector<Token>& tokens) {
  bool behind_digits = false;
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == Kind::kDigit) behind_digits = true;
    if (tokens[i].kind == Kind::kPlainDigit) behind_digits = false;
    if (tokens[i].kind != Kind::kSlash || !behind_digits) continue;
    size_t next = i + 1;
    while (next < tokens.size() && tokens[next].kind == Kind::kLiteral) ++next;
    if (next < tokens.size() && (tokens[next].kind == Kind::kDigit || tokens[next].kind == Kind::kPlainDigit))
      return i;
    behind_digits = false;
  }
  return tokens.size();
}

bool SettleFraction(Section& section, size_t slash) {
  auto& tokens = section.tokens;
  const size_t denominator_end = SettleDenominator(section, slash + 1);
  if (denominator_end == 0) return false;
  section.fraction_end = denominator_end;
  tokens[slash].kind = Kind::kLiteral;

  // The placeholders nearest to the slash are the numerator's; what stands before them is the integer part.
  size_t numerator = slash;
  while (tokens[numerator - 1].kind != Kind::kDigit) --numerator;
  while (numerator > 0 && tokens[numerator - 1].kind == Kind::kDigit) {
    tokens[--numerator].kind = Kind::kNumerator;
    ++section.numerators;
  }
  section.fraction_begin = numerator;
  for (size_t i = 0; i < tokens.size(); ++i) {
    Token& token = tokens[i];
    switch (token.kind) {
      case Kind::kDigit:
        if (i > numerator) return false;
        token.kind = Kind::kInteger;
        ++section.integers;
        section.fraction_begin = i + 1;
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
  section.has_integer_part = section.integers > 0;
  section.kind = Section::Kind::kFraction;
  return true;
}

void AppendFractionSection(std::string& out, const Section& section, double magnitude) {
  constexpr int kMostScale = 300;
  magnitude = std::min(magnitude * std::pow(10, std::min(section.scale, kMostScale)),
                       std::numeric_limits<double>::max());
  double whole = std::floor(magnitude);
  const double rest = magnitude - whole;
  Ratio ratio{0, 1};
  if (section.fixed_denominator > 0) {
    ratio.denominator = static_cast<double>(section.fixed_denominator);
    ratio.numerator = std::floor(rest * ratio.denominator + 0.5);
  } else {
    constexpr int kMostDigits = 7;
    ratio = Approximate(rest, std::pow(10, std::min(section.denominators, kMostDigits)) - 1);
  }
  if (ratio.numerator >= ratio.denominator) {
    whole += 1;
    ratio.numerator = 0;
  }
  if (!section.has_integer_part) {
    ratio.numerator += whole * ratio.denominator;
    whole = 0;
  }
  const bool is_whole = section.has_integer_part && ratio.numerator == 0;
  const Decimal integer(whole);
  const Decimal numerator(ratio.numerator);
  // A zero stays visible if no fraction follows it.
  IntegerWriter integers(out, integer,
                         is_whole ? std::max(integer.IntegerDigits(), 1) : integer.IntegerDigits(),
                         section.integers, section.grouping);
  IntegerWriter numerators(out, numerator, std::max(numerator.IntegerDigits(), 1), section.numerators, false);
  bool denominator_done = false;
  for (size_t i = 0; i < section.tokens.size(); ++i) {
    const Token& token = section.tokens[i];
    if (is_whole && i >= section.fraction_begin && i < section.fraction_end) {
      AppendBlanks(out, token.kind == Kind::kLiteral ? section.Text(token) : " ");
    } else if (token.kind == Kind::kInteger) {
      integers.Next(token.symbol);
    } else if (token.kind == Kind::kNumerator) {
      numerators.Next(token.symbol);
    } else if (token.kind == Kind::kDenominator) {
      if (!denominator_done) AppendDenominator(out, section, i, Decimal(ratio.denominator));
      denominator_done = true;
    } else {
      out += section.Text(token);
    }
  }
}

}  // namespace plotsmith::xlsx
