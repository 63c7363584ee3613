#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "xlsx/sheet/IsoDate.h"

namespace plotsmith::xlsx {
namespace {

struct Case {
  double serial;
  const char* format;
  DateSystem dates;
  const char* iso;  ///< Empty for a number without a date.
};

constexpr auto k1900 = DateSystem::k1900, k1904 = DateSystem::k1904;

TEST(IsoDateTest, ASerialIsWhatItsFormatShows) {
  const Case cases[] = {
      {45000, "yyyy-mm-dd", k1900, "2023-03-15"},
      {45000.999, "d mmm", k1900, "2023-03-15"},
      {43538, "yyyy", k1904, "2023-03-15"},
      {0, "d", k1904, "1904-01-01"},
      {1, "d", k1900, "1900-01-01"},
      {59, "d", k1900, "1900-02-28"},
      {60, "d", k1900, ""},
      {61, "d", k1900, "1900-03-01"},
      {0, "d", k1900, ""},
      {-1, "d", k1904, ""},
      {2958465, "d", k1900, "9999-12-31"},
      {2958466, "d", k1900, ""},
      {2957004, "d", k1904, ""},
      {1e300, "d", k1900, ""},
      {45000.5, "yyyy-mm-dd hh:mm", k1900, "2023-03-15T12:00:00"},
      {45000, "m/d h AM/PM", k1900, "2023-03-15T00:00:00"},
      {45000.99999999999, "d h:mm", k1900, "2023-03-16T00:00:00"},
      {0.75, "h:mm", k1900, "18:00:00"},
      {45000.75, "h:mm AM/PM", k1900, "18:00:00"},
      {0.5 + 1.5 / 86400, "mm:ss.0", k1900, "12:00:01.5"},
      {-0.5, "h:mm", k1900, ""},
      {1.5, "[h]:mm", k1900, "PT36H"},
      {-1.0 / 24 - 61.25 / 86400, "[m]", k1904, "-PT1H1M1.25S"},
      {0, "[ss]", k1900, "PT0S"},
      {45000, "0.00", k1900, ""},
      {45000, "General", k1900, ""},
      {-5, "d;0.0", k1904, ""},
  };
  for (const Case& one : cases) {
    const DateFields fields = NumberFormat::Parse(one.format)->FieldsOf(one.serial);
    const std::string text = IsoText(one.serial, fields, one.dates);
    EXPECT_EQ(text, one.iso) << one.serial << ' ' << one.format;
    const auto read = ParseIsoDate(text, one.dates);
    const bool isWhole = fields == DateFields::kDateTime ||
                         (fields == DateFields::kDate && one.serial == std::floor(one.serial));
    if (text.empty() || !isWhole) continue;
    EXPECT_NEAR(read.value_or(-1), one.serial, 1e-8) << text;
  }
}

TEST(IsoDateTest, ADateATimeOrBothAreRead) {
  const std::pair<const char*, double> cases[] = {{"2023-03-15", 45000},
                                                  {"2023-03-15T12:00:00", 45000.5},
                                                  {"2023-03-15T12:00:00Z", 45000.5},
                                                  {"18:00:00", 0.75},
                                                  {"18:00", 0.75},
                                                  {"06:36", 0.275},
                                                  {"00:00:30", 30.0 / 86400},
                                                  {"00:01:01.5", 61.5 / 86400},
                                                  {"1900-01-01", 1},
                                                  {"1900-02-01T06:00", 32.25},
                                                  {"18:00:00Z", 0.75},
                                                  {"1900-02-28", 59},
                                                  {"1900-03-01", 61}};
  for (const auto& [text, serial] : cases) EXPECT_EQ(ParseIsoDate(text, k1900), serial) << text;
  const char* const invalid[] = {"18:",           "18:0",       "18:00:",
                                 "1x:00",         "-1:00",      "+202-01-01",
                                 "2023-01-0x",    "2023/01/01", "2023-01/01",
                                 "2023-03-15T12", "",           "18",
                                 "2023-13-01",    "2023-02-30", "2023-03-15 12:00:00",
                                 "2023-03-15T",   "2023-03",    "18:00:00+01:00",
                                 "2023-3-15",     "23-03-15",   "25:00:00x"};
  for (const char* text : invalid) EXPECT_EQ(ParseIsoDate(text, k1900), std::nullopt) << text;
  EXPECT_EQ(ParseIsoDate("1904-01-01", k1904), 0);
  EXPECT_EQ(ParseIsoDate("1904-01-31T12:00:00", k1904), 30.5);
}

}  // namespace
}  // namespace plotsmith::xlsx
