#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "runtime/Ascii.h"
#include "xlsx/numberformat/Program.h"

namespace plotsmith::xlsx {
namespace {

using Kind = Token::Kind;

/// Longer than any code that Excel accepts (255), and short enough to be parsed quickly.
constexpr std::size_t kMaxCodeSize = 1024;
constexpr std::size_t kMaxSections = 4;

constexpr std::string_view kSystemDate = "dddd, mmmm d, yyyy";
constexpr std::string_view kSystemTime = "h:mm:ss AM/PM";

using ascii::IsLetter;
using ascii::Lower;

bool StartsWith(std::string_view text, std::string_view lowerCasePrefix) {
  return text.size() >= lowerCasePrefix.size() &&
         std::equal(lowerCasePrefix.begin(), lowerCasePrefix.end(), text.begin(),
                    [](char a, char b) { return a == Lower(b); });
}

bool Equals(std::string_view text, std::string_view lowerCase) {
  return text.size() == lowerCase.size() && StartsWith(text, lowerCase);
}

/// Returns the size of the first character of a text, which must not be empty. A byte that isn't UTF-8 counts
/// as a character.
std::size_t CharacterSize(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t wanted = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  std::size_t size = 1;
  while (size < wanted && size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
    ++size;
  return size;
}

bool IsColor(std::string_view name) {
  constexpr std::string_view kNames[] = {"black",   "blue", "cyan",  "green",
                                         "magenta", "red",  "white", "yellow"};
  if (std::any_of(std::begin(kNames), std::end(kNames), [&](auto known) { return Equals(name, known); }))
    return true;
  if (!StartsWith(name, "color")) return false;
  name.remove_prefix(5);
  if (name.starts_with(' ')) name.remove_prefix(1);
  int index = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), index);
  return error == std::errc() && end == name.data() + name.size() && index >= 1 && index <= 56;
}

std::optional<Condition> ParseCondition(std::string_view text) {
  using Operator = Condition::Operator;
  constexpr std::pair<std::string_view, Operator> kOperators[] = {
      {"<=", Operator::kLessEqual}, {"<>", Operator::kNotEqual}, {">=", Operator::kGreaterEqual},
      {"<", Operator::kLess},       {">", Operator::kGreater},   {"=", Operator::kEqual}};
  const auto* found = std::find_if(std::begin(kOperators), std::end(kOperators),
                                   [&](const auto& o) { return text.starts_with(o.first); });
  if (found == std::end(kOperators)) return std::nullopt;
  text.remove_prefix(found->first.size());
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  Condition condition{found->second, 0};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), condition.limit);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(condition.limit))
    return std::nullopt;
  return condition;
}

/// Returns the meaning of a single character.
Kind KindOf(char c) {
  switch (Lower(c)) {
    case '0':
    case '#':
    case '?':
      return Kind::kDigit;
    case '.':
      return Kind::kPoint;
    case ',':
      return Kind::kComma;
    case '/':
      return Kind::kSlash;
    case '%':
      return Kind::kPercent;
    case '@':
      return Kind::kText;
    case 'b':
      return Kind::kBuddhistYear;
    case 'd':
      return Kind::kDay;
    case 'e':
      return Kind::kEraYear;
    case 'g':
      return Kind::kEra;
    case 'h':
      return Kind::kHour;
    case 'm':
      return Kind::kMonth;
    case 's':
      return Kind::kSecond;
    case 'y':
      return Kind::kYear;
    default:
      return c >= '1' && c <= '9' ? Kind::kPlainDigit : Kind::kLiteral;
  }
}

/// Applies the calendar part of a locale to a section.
void UseCalendar(Section& section, std::uint32_t calendar) {
  constexpr std::uint32_t kJapanese = 3;
  constexpr std::uint32_t kTaiwanese = 4;
  constexpr std::uint32_t kKorean = 5;
  constexpr std::uint32_t kHijri = 6;
  constexpr std::uint32_t kBuddhist = 7;
  if (calendar == kJapanese) section.language = 0x411;
  if (calendar == kTaiwanese) section.language = 0x404;
  if (calendar == kKorean) section.yearOffset = 2333;
  if (calendar == kHijri) section.calendar = Calendar::kHijri;
  if (calendar == kBuddhist) section.yearOffset = 543;
}

/// Reads the sections one after the other.
class Reader {
 public:
  explicit Reader(std::string_view code) : code_(code) {}

  /// Reads up to the semicolon or the end. Returns false if the section is invalid.
  bool ReadSection(Section& section);
  /// Skips the semicolon after a section; returns false at the end of the code.
  bool NextSection() {
    if (position_ >= code_.size()) return false;
    ++position_;
    return true;
  }

 private:
  std::string_view Rest() const { return code_.substr(position_); }
  bool ReadToken();
  bool ReadEscape();
  bool ReadQuoted();
  bool ReadBracket();
  bool ReadLocale(std::string_view content);
  bool ReadLetter();
  bool SettleSection();
  bool UseSystemFormat(std::string_view code);

  void Add(Kind kind, std::string_view text, char symbol = 0);
  /// Returns the run of equal letters at the current position.
  std::string_view Run() const;

  std::string_view code_;
  std::size_t position_ = 0;
  Section* section_ = nullptr;
  bool hasBracket_ = false;
  bool hasColor_ = false;
  bool hasField_ = false;  // anything other than literals
  bool hasDigit_ = false;
  std::string_view systemFormat_;
  std::size_t literalLetterEnd_ = 0;
  std::size_t buddhistYearEnd_ = 0;
};

void Reader::Add(Kind kind, std::string_view text, char symbol) {
  auto& texts = section_->texts;
  section_->tokens.push_back(
      {kind, symbol, static_cast<std::uint32_t>(texts.size()), static_cast<std::uint32_t>(text.size())});
  texts += text;
  hasField_ |= kind != Kind::kLiteral && kind != Kind::kPlainDigit;
  hasDigit_ |= kind == Kind::kDigit;
}

std::string_view Reader::Run() const {
  const std::string_view rest = Rest();
  const auto end = std::find_if(rest.begin(), rest.end(), [&](char c) { return Lower(c) != Lower(rest[0]); });
  return rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
}

bool Reader::ReadSection(Section& section) {
  section_ = &section;
  hasBracket_ = hasColor_ = hasField_ = hasDigit_ = false;
  systemFormat_ = {};
  while (position_ < code_.size() && code_[position_] != ';') {
    if (!ReadToken()) return false;
  }
  if (!systemFormat_.empty()) return UseSystemFormat(systemFormat_);
  // The section has only a colour or a condition, so numbers are shown in General format.
  if (section.tokens.empty() && hasBracket_) Add(Kind::kGeneral, {});
  return SettleSection();
}

bool Reader::ReadToken() {
  const std::string_view rest = Rest();
  const char c = rest[0];
  if (c == '"') return ReadQuoted();
  if (c == '[') return ReadBracket();
  if (c == ']') return false;
  if (c == '\\' || c == '_' || c == '*') return ReadEscape();
  if (IsLetter(c)) return ReadLetter();
  constexpr std::string_view kChineseHalves = "上午/下午";
  std::string_view text = rest.substr(0, CharacterSize(rest));
  if (c == ',') {
    constexpr std::size_t kMost = 100;  // this many make any number zero
    const std::size_t count = Run().size();
    Add(Kind::kComma, text, static_cast<char>(std::min(count, kMost)));
    position_ += count;
    return true;
  }
  if (rest.starts_with(kChineseHalves)) {
    text = kChineseHalves;
    Add(Kind::kAmPm, text);
  } else {
    Add(KindOf(c), text, c);
  }
  position_ += text.size();
  return true;
}

/// Reads a literal character, the width of a character, or a fill character. The cell's width isn't known, so
/// nothing is filled, and each width becomes a space.
bool Reader::ReadEscape() {
  const std::string_view rest = Rest();
  if (rest.size() < 2) return false;
  const std::string_view character = rest.substr(1, CharacterSize(rest.substr(1)));
  if (rest[0] == '\\') Add(Kind::kLiteral, character);
  if (rest[0] == '_') Add(Kind::kLiteral, " ");
  position_ += 1 + character.size();
  return true;
}

bool Reader::ReadQuoted() {
  const std::size_t end = code_.find('"', position_ + 1);
  if (end == std::string_view::npos) return false;
  Add(Kind::kLiteral, code_.substr(position_ + 1, end - position_ - 1));
  position_ = end + 1;
  return true;
}

bool Reader::ReadBracket() {
  const std::size_t end = code_.find(']', position_);
  if (end == std::string_view::npos) return false;
  const std::string_view content = code_.substr(position_ + 1, end - position_ - 1);
  if (content.empty()) return false;
  position_ = end + 1;

  if (content[0] == '$') return ReadLocale(content.substr(1));
  const Kind unit = content[0] == 'm' || content[0] == 'M' ? Kind::kMinute : KindOf(content[0]);
  if ((unit == Kind::kHour || unit == Kind::kMinute || unit == Kind::kSecond) &&
      std::all_of(content.begin(), content.end(), [&](char c) { return Lower(c) == Lower(content[0]); })) {
    if (section_->elapsed != Kind::kLiteral) return false;
    section_->elapsed = unit;
    Add(unit, content);
    return true;
  }

  // These brackets apply to the whole section and must come first.
  if (hasField_) return false;
  hasBracket_ = true;
  if (content[0] == '<' || content[0] == '=' || content[0] == '>') {
    if (section_->condition) return false;
    section_->condition = ParseCondition(content);
    return section_->condition.has_value();
  }
  if (IsColor(content)) return !std::exchange(hasColor_, true);
  // Codes for other numerals; en-US has none.
  return content.size() == 6 && StartsWith(content, "dbnum") && content[5] >= '1' && content[5] <= '4';
}

/// Reads a currency text and a locale: numerals, calendar and language, with two, two and four hexadecimal
/// digits.
bool Reader::ReadLocale(std::string_view content) {
  hasBracket_ = true;
  const std::size_t dash = content.find('-');
  if (dash != 0) Add(Kind::kLiteral, content.substr(0, dash));
  if (dash == std::string_view::npos) return true;
  const std::string_view locale = content.substr(dash + 1);
  std::uint32_t id = 0;
  const auto [end, error] = std::from_chars(locale.data(), locale.data() + locale.size(), id, 16);
  const bool isNumber = error == std::errc() && end == locale.data() + locale.size();
  if (Equals(locale, "x-sysdate") || (isNumber && id == 0xF800)) systemFormat_ = kSystemDate;
  if (Equals(locale, "x-systime") || (isNumber && id == 0xF400)) systemFormat_ = kSystemTime;
  if (!isNumber) return true;  // a name; its language has no effect

  section_->language = static_cast<std::uint16_t>(id & 0xFFFF);
  UseCalendar(*section_, id >> 16 & 0xFF);
  return true;
}

bool Reader::ReadLetter() {
  const std::string_view rest = Rest();
  const auto take = [&](Kind kind, std::string_view text, char symbol = 0) {
    Add(kind, text, symbol);
    position_ += text.size();
    return true;
  };
  if (StartsWith(rest, "general")) return take(Kind::kGeneral, rest.substr(0, 7));
  // The long form is always shown in capitals, the short one as it is written.
  if (StartsWith(rest, "am/pm")) return take(Kind::kAmPm, "AM/PM");
  if (StartsWith(rest, "a/p")) return take(Kind::kAmPm, rest.substr(0, 3));
  if (hasDigit_ && (rest.starts_with("E+") || rest.starts_with("E-")))
    return take(Kind::kExponent, rest.substr(0, 2), rest[1]);
  if (Lower(rest[0]) == 'n') return false;  // reserved

  const Kind kind = KindOf(rest[0]);
  const bool behindLiteral = position_ > 0 && literalLetterEnd_ == position_;
  const bool behindBuddhistYear = position_ > 0 && buddhistYearEnd_ == position_;
  if (kind == Kind::kLiteral) {
    if (behindBuddhistYear) return false;
    take(kind, rest.substr(0, 1));
    literalLetterEnd_ = position_;
    return true;
  }
  const std::string_view run = Run();
  if (kind != Kind::kBuddhistYear) return take(kind, run);
  // Inside a word, the letter isn't a Buddhist year but unquoted text, which Excel refuses.
  if (behindLiteral) return false;
  if (StartsWith(rest, "b1") || StartsWith(rest, "b2")) {
    section_->calendar = rest[1] == '2' ? Calendar::kHijri : Calendar::kGregorian;
    position_ += 2;
  } else {
    take(kind, run);
  }
  buddhistYearEnd_ = position_;
  return true;
}

bool Reader::UseSystemFormat(std::string_view code) {
  const std::optional<Condition> condition = section_->condition;
  *section_ = {};
  section_->condition = condition;
  return Reader(code).ReadSection(*section_);
}

bool Reader::SettleSection() {
  Section& section = *section_;
  bool hasDate = false;
  bool hasGeneral = false;
  bool hasText = false;
  bool hasPercent = false;
  for (const Token& token : section.tokens) {
    hasGeneral |= token.kind == Kind::kGeneral;
    hasText |= token.kind == Kind::kText;
    hasPercent |= token.kind == Kind::kPercent;
    hasDate |= token.kind >= Kind::kYear && token.kind <= Kind::kBuddhistYear;
  }
  if (hasDate) return !hasGeneral && !hasText && ResolveDate(section);
  if (hasDigit_) return !hasGeneral && !hasText && ResolveNumber(section);
  if (hasGeneral && (hasText || hasPercent)) return false;
  section.kind = hasGeneral ? Section::Kind::kGeneral
                 : hasText  ? Section::Kind::kText
                            : Section::Kind::kLiteral;
  for (Token& token : section.tokens) {
    if (token.kind != Kind::kGeneral && token.kind != Kind::kText) token.kind = Kind::kLiteral;
  }
  return true;
}

/// Completes missing conditions. Three sections are for positive, negative and other numbers; two are for
/// numbers that aren't negative, and for others.
void CompleteConditions(std::vector<Section>& numbers) {
  using Operator = Condition::Operator;
  if (numbers.size() < 2) return;
  const bool hasThird = numbers.size() > 2;
  if (!numbers[0].condition)
    numbers[0].condition = Condition{hasThird ? Operator::kGreater : Operator::kGreaterEqual, 0};
  if (hasThird && !numbers[1].condition) numbers[1].condition = Condition{Operator::kLess, 0};
}

/// Finds the sections that apply only to negative numbers. The section of a number can change only at a limit
/// or at zero, so it is enough to try these numbers and their neighbours.
void MarkNegativeSections(NumberFormat::Program& program) {
  std::vector<double> samples;
  const auto tryAround = [&](double limit) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double sample : {std::nextafter(limit, -kInfinity), limit, std::nextafter(limit, kInfinity)}) {
      if (sample >= 0) samples.push_back(sample);
    }
  };
  tryAround(0);
  for (const Section& section : program.numbers) {
    if (section.condition) tryAround(section.condition->limit);
  }
  for (Section& section : program.numbers) {
    section.onlyNegative = std::none_of(samples.begin(), samples.end(),
                                        [&](double sample) { return program.Select(sample) == &section; });
  }
}

}  // namespace

bool Condition::Holds(double value) const {
  switch (op) {
    case Operator::kLess:
      return value < limit;
    case Operator::kLessEqual:
      return value <= limit;
    case Operator::kEqual:
      return value == limit;
    case Operator::kNotEqual:
      return value != limit;
    case Operator::kGreaterEqual:
      return value >= limit;
    case Operator::kGreater:
      return value > limit;
  }
  return false;
}

const Section* NumberFormat::Program::Select(double value) const {
  for (const Section& section : numbers) {
    if (!section.condition || section.condition->Holds(value)) return &section;
  }
  return nullptr;
}

std::unique_ptr<NumberFormat::Program> ParseNumberFormat(std::string_view code) {
  if (code.size() > kMaxCodeSize) return nullptr;
  if (code.empty()) code = "General";
  Reader reader(code);
  std::vector<Section> sections;
  do {
    if (sections.size() == kMaxSections || !reader.ReadSection(sections.emplace_back())) return nullptr;
  } while (reader.NextSection());

  auto program = std::make_unique<NumberFormat::Program>();
  const bool isSingle = sections.size() == 1;
  if (sections.size() == kMaxSections || sections.back().kind == Section::Kind::kText) {
    if (sections.back().condition) return nullptr;
    program->text = std::move(sections.back());
    sections.pop_back();
  }
  for (std::size_t i = 0; i < sections.size(); ++i) {
    if (sections[i].kind == Section::Kind::kText || (i > 1 && sections[i].condition)) return nullptr;
  }
  program->numbers = std::move(sections);
  CompleteConditions(program->numbers);
  MarkNegativeSections(*program);
  if (isSingle && program->numbers.size() == 1 && !program->numbers[0].condition)
    program->numbers[0].hidesSignOfZero = true;
  return program;
}

}  // namespace plotsmith::xlsx
