#include <gtest/gtest.h>
#include <limits>

#include "tests/support/ErrorOf.h"
#include "xlsx/sheet/EnteredValue.h"

namespace plotsmith::xlsx {
namespace {

using Kind = excel::CellValue::Kind;

GridCell Entered(const runtime::Variant& value) {
  GridCell cell;
  EnterValue(cell, value, DateSystem::k1900);
  return cell;
}

TEST(EnteredValueTest, TextsThatReadAsNumbers) {
  const std::pair<const char*, double> cases[] = {
      {"5", 5},          {" -5.25 ", -5.25},  {"1e3", 1000},          {"1.5E-2", 0.015},
      {"50%", 0.5},      {"(5)", -5},         {"$1,234.50", 1234.5},  {"1,234,567", 1234567},
      {"-1,000", -1000}, {"12,345%", 123.45}, {"100,000e2", 10000000}};
  for (const auto& [text, number] : cases) {
    const GridCell cell = Entered(text);
    EXPECT_EQ(cell.kind, Kind::kNumber) << text;
    EXPECT_DOUBLE_EQ(cell.number, number) << text;
  }
}

TEST(EnteredValueTest, TextsThatStayTexts) {
  // Especially product codes and lists must stay texts, because two codes with the same number would become
  // one series.
  for (const char* text :
       {"1D2",    "1d2",     "5-",       "5 +",  "1,2",   "1,2,,3", "3,",         ",123",
        "1,2345", "1.5,000", "1,234,56", "&H10", "1e",    "e5",     "12/05/2024", "=a+b",
        "=",      "+abc",    "#NEIN",    "A",    "a,123", ",",      "1,123,",     "1,,123"}) {
    const GridCell cell = Entered(text);
    EXPECT_EQ(cell.kind, Kind::kText) << text;
    EXPECT_EQ(cell.text, text);
  }
  EXPECT_EQ(Entered("'50%").text, "50%");
  EXPECT_EQ(Entered("'").kind, Kind::kText);
}

TEST(EnteredValueTest, OtherValues) {
  EXPECT_EQ(Entered("").kind, Kind::kEmpty);
  EXPECT_EQ(Entered({}).kind, Kind::kEmpty);
  const struct {
    runtime::Variant value;
    Kind kind;
    double number;
    const char* text;
  } cases[] = {{"true", Kind::kBoolean, 1, ""},
               {"False", Kind::kBoolean, 0, ""},
               {true, Kind::kBoolean, 1, ""},
               {false, Kind::kBoolean, 0, ""},
               {"#N/A", Kind::kError, 2042, "#N/A"},
               {"#DIV/0!", Kind::kError, 2007, "#DIV/0!"},
               {runtime::Variant::Error{2007}, Kind::kError, 2007, "#DIV/0!"},
               {runtime::Variant::Error{7}, Kind::kError, 7, "#N/A"},
               {runtime::Variant::Null{}, Kind::kEmpty, 0, ""},
               {std::int32_t{5}, Kind::kNumber, 5, ""},
               {-0.5, Kind::kNumber, -0.5, ""},
               {runtime::Variant::Date{45000.5}, Kind::kNumber, 45000.5, ""}};
  for (const auto& c : cases) {
    GridCell cell = {Kind::kText, 9, "before", 3};
    EnterValue(cell, c.value, DateSystem::k1900);
    EXPECT_EQ(cell.kind, c.kind) << runtime::CStr(c.value);
    EXPECT_EQ(cell.number, c.number) << runtime::CStr(c.value);
    EXPECT_EQ(cell.text, c.text) << runtime::CStr(c.value);
    EXPECT_EQ(cell.style, 3u);
  }
  GridCell cell;
  EnterValue(cell, runtime::Variant::Date{45000.5}, DateSystem::k1904);
  EXPECT_EQ(cell.number, 43538.5);
  EXPECT_EQ(test::ErrorOf([] { Entered(std::numeric_limits<double>::infinity()); }),
            runtime::error::kOverflow);
  EXPECT_EQ(test::ErrorOf([] { Entered(std::string(32768, 'x')); }), runtime::error::kApplication);
  EXPECT_EQ(Entered(std::string(32767, 'x')).kind, Kind::kText);
  // The limit counts characters, not bytes.
  EXPECT_EQ(Entered("\u00E4" + std::string(32766, 'x')).kind, Kind::kText);
}

}  // namespace
}  // namespace plotsmith::xlsx
