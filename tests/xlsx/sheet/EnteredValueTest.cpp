#include <gtest/gtest.h>

#include "runtime/RuntimeError.h"
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
       {"1D2",      "1d2",  "5-", "5 +", "1,2",        "1,2,,3", "3,", ",123", "1,2345", "1.5,000",
        "1,234,56", "&H10", "1e", "e5",  "12/05/2024", "=a+b",   "=",  "+abc", "#NEIN",  "A"}) {
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
  EXPECT_EQ(Entered("true").kind, Kind::kBoolean);
  EXPECT_EQ(Entered("#N/A").kind, Kind::kError);
  EXPECT_EQ(test::ErrorOf([] { Entered(std::string(32768, 'x')); }), runtime::error::kApplication);
  EXPECT_EQ(Entered(std::string(32767, 'x')).kind, Kind::kText);
}

}  // namespace
}  // namespace plotsmith::xlsx
