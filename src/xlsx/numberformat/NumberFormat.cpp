#include "xlsx/numberformat/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "xlsx/numberformat/Program.h"

namespace plotsmith::xlsx {
namespace {

/// Text of a cell that can't show its number.
constexpr std::string_view kOverflow = "########";

/// Maximum number of characters that Excel displays in a cell. A code that repeats the text of the cell stops
/// there. A text that is shown once is complete, even if it is longer.
constexpr std::size_t kMostRepeated = 1024;

/// The formats that a file refers to only by number.
struct Builtin {
  int id;
  std::string_view code;
};

constexpr Builtin kBuiltins[] = {
    {0, "General"},
    {1, "0"},
    {2, "0.00"},
    {3, "#,##0"},
    {4, "#,##0.00"},
    {5, "$#,##0_);($#,##0)"},
    {6, "$#,##0_);[Red]($#,##0)"},
    {7, "$#,##0.00_);($#,##0.00)"},
    {8, "$#,##0.00_);[Red]($#,##0.00)"},
    {9, "0%"},
    {10, "0.00%"},
    {11, "0.00E+00"},
    {12, "# ?/?"},
    {13, R"(# ??/??)"},
    {14, "m/d/yyyy"},
    {15, "d-mmm-yy"},
    {16, "d-mmm"},
    {17, "mmm-yy"},
    {18, "h:mm AM/PM"},
    {19, "h:mm:ss AM/PM"},
    {20, "h:mm"},
    {21, "h:mm:ss"},
    {22, "m/d/yyyy h:mm"},
    {37, "#,##0_);(#,##0)"},
    {38, "#,##0_);[Red](#,##0)"},
    {39, "#,##0.00_);(#,##0.00)"},
    {40, "#,##0.00_);[Red](#,##0.00)"},
    {41, "_(* #,##0_);_(* (#,##0);_(* \"-\"_);_(@_)"},
    {42, "_($* #,##0_);_($* (#,##0);_($* \"-\"_);_(@_)"},
    {43, "_(* #,##0.00_);_(* (#,##0.00);_(* \"-\"??_);_(@_)"},
    {44, "_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)"},
    {45, "mm:ss"},
    {46, "[h]:mm:ss"},
    {47, "mm:ss.0"},
    {48, "##0.0E+0"},
    {49, "@"},
};

/// Ids of dates and times whose codes depend on an East Asian language.
struct EastAsianRange {
  int first, last;
  /// The built-in format that other languages show instead.
  int shownAs;
};

constexpr EastAsianRange kEastAsian[] = {{27, 31, 14}, {32, 35, 21}, {36, 36, 14}, {50, 58, 14}};

void AppendLiterals(std::string& out, const Section& section, Token::Kind placeholder,
                    std::string_view text) {
  const std::size_t begin = out.size();
  bool repeated = false;
  for (const Token& token : section.tokens) {
    if (token.kind == Token::Kind::kLiteral) {
      out += section.Text(token);
    } else if (token.kind == placeholder) {
      if (repeated && out.size() - begin > kMostRepeated) return;
      out += text;
      repeated = true;
    }
  }
}

bool IsOfCalendar(const Token& token) {
  using enum Token::Kind;
  return token.kind == kYear || token.kind == kMonth || token.kind == kDay || token.kind == kEra ||
         token.kind == kEraYear || token.kind == kBuddhistYear;
}

bool IsOfClock(const Token& token) {
  using enum Token::Kind;
  return token.kind == kHour || token.kind == kMinute || token.kind == kSecond || token.kind == kSubsecond;
}

bool Shows(const Section& section, bool (*isOfKind)(const Token&)) {
  return std::any_of(section.tokens.begin(), section.tokens.end(), isOfKind);
}

void AppendGeneralSection(std::string& out, const Section& section, double magnitude, bool negative) {
  if (negative) out += '-';
  for (const Token& token : section.tokens) {
    if (token.kind == Token::Kind::kGeneral)
      AppendGeneral(out, magnitude);
    else
      out += section.Text(token);
  }
}

}  // namespace

NumberFormat::NumberFormat(std::unique_ptr<const Program> program) : program_(std::move(program)) {}
NumberFormat::~NumberFormat() = default;

std::shared_ptr<const NumberFormat> NumberFormat::Parse(std::string_view code) {
  auto program = ParseNumberFormat(code);
  if (!program) return nullptr;
  return std::shared_ptr<const NumberFormat>(new NumberFormat(std::move(program)));
}

bool NumberFormat::IsDate() const {
  return std::any_of(program_->numbers.begin(), program_->numbers.end(), [&](const Section& section) {
    return section.kind == Section::Kind::kDate && Shows(section, IsOfCalendar);
  });
}

DateFields NumberFormat::FieldsOf(double value) const {
  const Section* section = std::isfinite(value) ? program_->Select(value) : nullptr;
  if (section == nullptr || section->kind != Section::Kind::kDate) return DateFields::kNone;
  if (Shows(*section, IsOfCalendar)) {
    return Shows(*section, IsOfClock) ? DateFields::kDateTime : DateFields::kDate;
  }
  return section->elapsed == Token::Kind::kLiteral ? DateFields::kTime : DateFields::kDuration;
}

bool NumberFormat::IsGeneral() const {
  const auto& numbers = program_->numbers;
  return numbers.size() == 1 && !program_->text && !numbers[0].condition &&
         numbers[0].kind == Section::Kind::kGeneral && numbers[0].tokens.size() == 1;
}

void NumberFormat::AppendNumber(std::string& out, double value, DateSystem dates) const {
  if (!std::isfinite(value)) {
    out += "#NUM!";
    return;
  }
  const Section* section = program_->Select(value);
  if (!section) {
    // With one condition, the other numbers use General; with two conditions, they have no format.
    if (program_->numbers.size() < 2)
      AppendGeneral(out, value);
    else
      out += kOverflow;
    return;
  }
  const bool negative = value < 0 && !section->onlyNegative;
  const double magnitude = std::fabs(value);
  switch (section->kind) {
    case Section::Kind::kGeneral:
      AppendGeneralSection(out, *section, magnitude, negative);
      return;
    case Section::Kind::kNumber:
    case Section::Kind::kScientific:
      AppendNumberSection(out, *section, magnitude, negative);
      return;
    case Section::Kind::kDate:
      // The 1900 date system has no negative dates in any section.
      if ((value < 0 && dates == DateSystem::k1900) ||
          !AppendDateSection(out, *section, magnitude, negative, dates))
        out += kOverflow;
      return;
    case Section::Kind::kFraction:
      if (negative) out += '-';
      AppendFractionSection(out, *section, magnitude);
      return;
    case Section::Kind::kLiteral:
    case Section::Kind::kText:
      if (negative) out += '-';
      AppendLiterals(out, *section, Token::Kind::kText, {});
      return;
  }
}

void NumberFormat::AppendText(std::string& out, std::string_view text) const {
  if (!program_->text) {
    out += text;
    return;
  }
  switch (program_->text->kind) {
    case Section::Kind::kLiteral:
    case Section::Kind::kText:
      AppendLiterals(out, *program_->text, Token::Kind::kText, text);
      return;
    case Section::Kind::kGeneral:
      AppendLiterals(out, *program_->text, Token::Kind::kGeneral, text);
      return;
    default:  // A section for numbers contains no text placeholder.
      out += text;
      return;
  }
}

void NumberFormat::AppendBoolean(std::string& out, bool value) const {
  AppendText(out, value ? "TRUE" : "FALSE");
}

std::string_view BuiltinNumberFormat(int id) {
  for (const EastAsianRange& range : kEastAsian) {
    if (id >= range.first && id <= range.last) id = range.shownAs;
  }
  const auto* found = std::find_if(std::begin(kBuiltins), std::end(kBuiltins),
                                   [&](const Builtin& builtin) { return builtin.id == id; });
  return found == std::end(kBuiltins) ? std::string_view() : found->code;
}

std::optional<int> BuiltinNumberFormatId(std::string_view code) {
  const auto* found = std::find_if(std::begin(kBuiltins), std::end(kBuiltins),
                                   [&](const Builtin& builtin) { return builtin.code == code; });
  return found == std::end(kBuiltins) ? std::nullopt : std::optional(found->id);
}

}  // namespace plotsmith::xlsx
