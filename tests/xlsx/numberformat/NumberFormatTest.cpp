#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "tests/support/Paths.h"
#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {
namespace {

constexpr DateSystem k1904 = DateSystem::k1904;

std::string Show(std::string_view code, double value, DateSystem dates = DateSystem::k1900) {
  const auto format = NumberFormat::Parse(code);
  if (!format) return "refused";
  std::string out = "|";  // The existing text is kept.
  format->AppendNumber(out, value, dates);
  return out.starts_with('|') ? out.substr(1) : "overwritten";
}

std::string ShowText(std::string_view code, std::string_view text) {
  const auto format = NumberFormat::Parse(code);
  if (!format) return "refused";
  std::string out;
  format->AppendText(out, text);
  return out;
}

struct NumberCase {
  const char* code;
  double value;
  const char* shown;
  DateSystem dates = DateSystem::k1900;
};

void ExpectShown(const std::vector<NumberCase>& cases) {
  for (const auto& c : cases)
    EXPECT_EQ(Show(c.code, c.value, c.dates), c.shown) << c.code << " of " << c.value;
}

TEST(NumberFormatTest, GeneralShowsUpToElevenDigits) {
  ExpectShown({
      {"General", 0, "0"},
      {"General", -0.0, "0"},
      {"General", 0.1 + 0.2, "0.3"},
      {"General", -12.5, "-12.5"},
      {"GENERAL", 1.0 / 3, "0.333333333"},
      {"", 200.0 / 3, "66.66666667"},
      {"General", 12345678901.5, "12345678902"},
      {"General", 99999999999.0, "99999999999"},
      {"General", 99999999999.5, "1E+11"},
      {"General", 123456789012.0, "1.23457E+11"},
      {"General", 9.99999999999, "10"},
      {"General", 0.0001, "0.0001"},
      {"General", 0.000123456789, "0.000123457"},
      {"General", 0.00001, "0.00001"},
      {"General", 0.0000123456, "1.23456E-05"},
      {"General", 1.234e-10, "1.234E-10"},
      {"General", 1e-9, "0.000000001"},
      {"General", 1.23456789e100, "1.2346E+100"},
      {"General", -4.9e-324, "-4.9407E-324"},
      {R"(General "units")", 3, "3 units"},
      {R"("x"General)", -5, "-x5"},
      {"[Red][<=100];[Blue][>100]", -7, "-7"},
      {"[Magenta]", 1e21, "1E+21"},
  });
}

TEST(NumberFormatTest, DigitPlaceholders) {
  ExpectShown({
      {"0", 0.5, "1"},
      {"0.00", 0.125, "0.13"},
      {"0.00", 1.005, "1.01"},
      {"0.00", -0.125, "-0.13"},
      {"0.00", 9.995, "10.00"},
      {"0.0", 0.04, "0.0"},
      {"000.0", 1.2, "001.2"},
      {"#", 0, ""},
      {"#.##", 0.5, ".5"},
      {"0.##", 5, "5."},
      {"?0.0?", 1.5, " 1.5 "},
      {"?.?", 0, " . "},
      {".00", 12.345, "12.35"},
      {"#0#####", 123, "0123"},
      {"00.00.00.000", 12.3456789, "12.34.56.789"},
      {"000-00-0000", 123456789, "123-45-6789"},
      {"(###) ###-####", 5551234, "() 555-1234"},
      {R"(##\,##\,###)", 12500, ",12,500"},
      {R"(##0° 00' 00'')", 123456, "12° 34' 56''"},
      {R"(\c\c\c?????0"aaaa"0"bbbb"000000.00%)", -12.3456789, "-ccc     0aaaa0bbbb001234.57%"},
      {R"(???\/???)", 123.45, "   /123"},
      {"0.0x", 2.55, "2.6x"},
      {"# ft", 72, "72 ft"},
      {"123", 7, "123"},
      {"7/8", 4.3, "7/8"},
      {"$0/\"km\"", 3, "$3/km"},
      {"0.0000000", 1e-7, "0.0000001"},
      {"0", 1234567890123456789.0, "1234567890123460000"},
      {"0.00", 1e-308, "0.00"},
  });
  EXPECT_EQ(Show("0", 1e308), "1" + std::string(308, '0'));
}

TEST(NumberFormatTest, ThousandsScalingAndPercent) {
  ExpectShown({
      {"#,##0", 999, "999"},
      {"#,##0", 1234567.5, "1,234,568"},
      {"0,000", 12, "0,012"},
      {"?,???", 12, "   12"},
      {"#,#", 1234, "1,234"},
      {",#", 1234, ",1234"},
      {"0,", 1234567, "1235"},
      {"0.0,,", 1234567, "1.2"},
      {"0,.0", 1234567, "1234.6"},
      {"#,##0,K", 12345, "12K"},
      {R"(0,\k.00)", 1234567.12, "1234567k.12"},
      {R"(#,#,\z##.##,,\K,\b)", 123456789.12345, "1z23.46K,b"},
      {R"(0\#,,,#,,#)", 1234567, "1,234,5#,67"},
      {R"(00.,00,0,,\z,\k,)", 123456789357.12, "123456.789z,k,"},
      {R"(,,,\K,,,#,,,,#,)", 1234567.12, ",K,1,235"},
      {"0%", 0.285, "29%"},
      {"0.0%", -0.0004, "0.0%"},
      {"0%%", 0.5, "5000%%"},
      {"%0", 0.5, "%50"},
      {"0\"%\"", 0.5, "1%"},
  });
}

TEST(NumberFormatTest, Scientific) {
  ExpectShown({
      {"0.00E+00", 12345, "1.23E+04"},
      {"0.00E+00", 9.996, "1.00E+01"},
      {"0.00E-00", 0.000123, "1.23E-04"},
      {"0.00E-00", 12345, "1.23E04"},
      {"0.0E+0", -1e100, "-1.0E+100"},
      {"##0.0E+0", 1234, "1.2E+3"},
      {"##0.0E+0", 999.96, "1.0E+3"},
      {"##0.0E+0", 0, "000.0E+0"},
      {"0000.00E+00", 1234567.12, "0123.46E+04"},
      {"#E+0", 3.14, "3E+0"},
      {"0.00E+00#####", 12345, "1.23E+004"},
      {R"(0"abde".0"??"000E+00)", 12.3456789, "1abde.2??346E+01"},
      {R"(0.00E+\@0)", 12345, "1.23E@+4"},
  });
}

TEST(NumberFormatTest, Fractions) {
  ExpectShown({
      {"# ?/?", 0, "0    "},
      {"# ?/?", 1, "1    "},
      {"# ?/?", 0.5, " 1/2"},
      {"# ?/?", 1.3, "1 1/3"},  // Excel uses the convergent, although 2/7 is nearer.
      {"# ?/?", 2.3, "2 2/7"},  // The binary digits of the fraction differ.
      {"# ?/?", 0.98, "1    "},
      {"# ?/?", -0.1, "-0    "},
      {R"(# ??/??)", -1.2, "-1  1/5 "},
      {R"(# ??/??)", 3.14159265, "3  1/7 "},
      {"#/##", 0.3, "3/10"},
      {R"(??/??)", 12.3456789, "1000/81"},
      {R"(#0#00??/??)", 12.3456789, "01000/81"},
      {"?/16", 1.25, "20/16"},
      {"# ?/8", 5.9999, "6    "},
      {"#,### ?/10", 1000.1, "1,000 1/10"},
      {"# 00/00", 1.25, "1 01/04"},
      {R"("s"??/?????????"e")", 0.123251512342345, "s480894/3901729  e"},
      {R"(# "h" ? "a" / "b" ?)", 1.2, "1 h 1 a / b 5"},
      {R"(# "ß" ? "a" / "b" ?)", 1, "1            "},
      {R"(# "hh" ?/?)", 1, "1       "},
      {"# ?/?%", 0.005, " 1/2%"},
      {"# ?/?", 1e16, "10000000000000000    "},
  });
}

TEST(NumberFormatTest, SectionsConditionsAndSigns) {
  ExpectShown({
      {"0;(0)", -5, "(5)"},
      {"0;(0)", 0, "0"},
      {"0;(0);\"none\"", 0, "none"},
      {"General;General", -5, "5"},
      {"0;;", -5, ""},
      {"0;-0;;@", 0, ""},
      {"[Red]0.00;[Color 12]-0.0", -5, "-5.0"},
      // If only zeros are shown, a single section has no sign.
      {"0.00", -0.001, "0.00"},
      {"-0.0", -0.01, "-0.0"},
      {"0.0;-0.0", -0.01, "-0.0"},
      {"0.0;@", -0.01, "-0.0"},
      {"0.00_);(0.00)", -0.001, "(0.00)"},
      // A section that applies only to negative numbers shows no sign.
      {"[<-10]#\" Wow\"", -20, "20 Wow"},
      {"[>-10]#\" Wow\"", -5, "-5 Wow"},
      {"[>=-1]0;0", -2, "2"},
      {"[>=1]0;0", -2, "-2"},
      {"[=0]?;#,##0.00", -12.3, "-12.30"},
      {"[=0]\"-\";[<=0]0.0;0", -2, "2.0"},
      {"[>=100]#,##0;[<=-100]-#,##0;#,##0.00", -150, "-150"},
      {"[>=100]#,##0;[<=-100]-#,##0;#,##0.00", -3.96, "-3.96"},
      {"[>1e3]\"big\";[< -1.5E+3]\"low\";0", 1000.5, "big"},
      {"[>1e3]\"big\";[< -1.5E+3]\"low\";0", -1501, "low"},
      {"[<>50]0.0;000", 50, "050"},
      {"[>10]0.00;[>5]0.0000", 7, "7.0000"},
      {"[>10]0.00;[>5]0.0000", 3, "########"},
      {"[>10]0.00", 3.5, "3.5"},
      {"[Green]#,##0;[Red][<-2](#,##0.00)", -5, "(5.00)"},
      // A section of literals still shows the sign of a negative number.
      {"\"foo\"", -1, "-foo"},
      {R"([<0]"";0%)", -1, ""},
  });
}

TEST(NumberFormatTest, LiteralsAndLocales) {
  ExpectShown({
      {R"($+-(:)!^&'~{}<>= 0)", 1, "$+-(:)!^&'~{}<>= 1"},
      {"£0;-\"€\"\\¥0", -1, "-€¥1"},
      {"_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)", 12.5, " $12.50 "},
      {"_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)", -12.5, " $(12.50)"},
      {"_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)", 0, " $-   "},
      {"0_р*я.", 3, "3 ."},
      {"[$€-407] #,##0.00", 1234.5, "€ 1,234.50"},
      {"[$US$-409]0", -3, "-US$3"},
      {"[$GBP-809]", 3, "GBP"},
      {"[$-409]General", 5, "5"},
      {"[DBNum1][$-804]0", 5, "5"},
      {"Zero", 1234567, "Z5280ro"},
  });
}

TEST(NumberFormatTest, Dates) {
  ExpectShown({
      {"m/d/yyyy", 0, "1/0/1900"},
      {"m/d/yyyy", 1, "1/1/1900"},
      {"yyyy-mm-dd", 60, "1900-02-29"},
      {"yyyy-mm-dd", 61, "1900-03-01"},
      {"yyyy-mm-dd", 0, "1904-01-01", k1904},
      {"yyyy-mm-dd", 1.99999999, "1904-01-03", k1904},
      {"y yy yyy yyyyy", 45000, "23 23 2023 2023"},
      {"m mm mmm mmmm mmmmm mmmmmm", 44999, "3 03 Mar March M M"},
      {"d dd ddd dddd", 44990, "5 05 Sun Sunday"},
      {"dddd, mmmm d, yyyy", 2958465, "Friday, December 31, 9999"},
      {"D-MMM-YY", 36526, "1-Jan-00"},
      {"d.m.yy,", 36526, "1.1.00,"},
      {R"(yyyy"年"m"月"d"日")", 45000, "2023年3月15日"},
      {"yyyy年m月", 45000, "2023年3月"},
      {"yyyy-mm-dd", -1, "########"},
      {"yyyy-mm-dd;yyyy", -1, "########"},
      {"yyyy-mm-dd", 2958466, "########"},
      {"yyyy-mm-dd", 2957004, "########", k1904},
      {"yyyy-mm-dd", 2958465.99999422, "########"},
      {"yyyy-mm-dd", 2958465.99999421, "9999-12-31"},
      {"m/d/yyyy", -1, "-1/2/1904", k1904},
      {"e ee", 45000, "2023 2023"},
      {"b bb bbbb", 45000, "66 66 2566"},
      {"[$-107041E]d mmm yyyy", 45000, "15 Mar 2566"},
      {"[$-411]ggge\"年\" gg g ee", 43586, "令和1年 令 R 01"},
      {"[$-411]ge.m.d", 43585, "H31.4.30"},
      {"[$-30411]ge", 367, "M34"},
      // The first and the last day of each era.
      {"[$-411]ge.m.d", 43586, "R1.5.1"},
      {"[$-411]ge.m.d", 32516, "H1.1.8"},
      {"[$-411]ge.m.d", 32515, "S64.1.7"},
      {"[$-411]ge.m.d", 9856, "S1.12.25"},
      {"[$-411]ge.m.d", 9855, "T15.12.24"},
      {"[$-411]ge.m.d", 4595, "T1.7.30"},
      {"[$-411]ge.m.d", 4594, "M45.7.29"},
      {"[$-404]gg e", 4384, "民國 1"},
      {"[$-404]gg e", 4383, " 1911"},
      {"[$-404]e/m/d", 45000, "112/3/15"},
      {"g", 45000, ""},
      {"B2yyyy-mm-dd", 0, "1317-08-29"},
      {"[$-2060401]d mmmm yyyy", 45472, "23 Dhu al-Hijjah 1445"},
      {"[$-2060401]d mmmm yyyy", 45479, "30 Dhu al-Hijjah 1445"},
      {"B2d/m/yyyy", 45480, "1/1/1446"},
      {"B2d/m/yyyy", 45481, "2/1/1446"},
      {"B1yyyy", 45000, "2023"},
      {"[$-F800]\"other\"", 45000, "Wednesday, March 15, 2023"},
      {"[$-x-systime]d", 45000.75, "6:00:00 PM"},
      {"[$-x-sysdate]d", 45000.75, "Wednesday, March 15, 2023"},
  });
}

TEST(NumberFormatTest, MonthsOfTheHijriCalendar) {
  constexpr const char* kNames[] = {"Muharram", "Safar",     "Rabi I",        "Rabi II",
                                    "Jumada I", "Jumada II", "Rajab",         "Sha'ban",
                                    "Ramadan",  "Shawwal",   "Dhu al-Qi'dah", "Dhu al-Hijjah"};
  int day = 45480;  // the first day of 1446
  for (int month = 0; month < 12; ++month) {
    ExpectShown(
        {{"B2d mmmm yyyy", static_cast<double>(day), ("1 " + std::string(kNames[month]) + " 1446").c_str()}});
    day += month % 2 == 0 ? 30 : 29;
  }
}

TEST(NumberFormatTest, Times) {
  ExpectShown({
      {"h:m:s", 0.25, "6:0:0"},
      {"hh:mm:ss", 0.9999942, "23:59:59"},
      {"hh:mm", 1.999995, "00:00"},
      {"h:mm", 1.010101, "0:14"},
      {"yyyy-mm-dd hh:mm:ss", 41722.4097222222, "2014-03-24 09:50:00"},
      {"d hh:mm:ss", 45000 + 37559.5 / 86400, "15 10:26:00"},
      {"ss.00", 70.0002779513889, "24.02"},
      {"ss.000", 70.0002779513889, "24.015"},
      {"s.0 s.000", 0.70707, "10.8 10.848"},
      {"mmss.0", 0.0005, "0043.2"},
      {"h:mm AM/PM", 0.5, "12:00 PM"},
      {"h:mm am/pm", 0, "12:00 AM"},
      {"h:mm a/P", 0.1, "2:24 a"},
      {"h a/p\"m\"", 0.9, "9 pm"},
      {"上午/下午h", 0.75, "下午6"},
      {"h:mm:ss AM/P", 0.5, "12:00:00 A1/P"},
      {"[h]:mm:ss", 1.5, "36:00:00"},
      {"[HH]:mm", 0.25, "06:00"},
      {"[mm]:ss", 1.0 / 24, "60:00"},
      {"[sssss]", 0.01, "00864"},
      {"[ss].00", 1.010101, "87272.73"},
      {"[h] h", 3, "72 72"},
      {"[h]:mm", -0.5, "########"},
      {"[h]:mm", -0.5, "-12:00", k1904},
      {"[h]:mm;-[h]:mm", -0.5, "-12:00", k1904},
      // Minutes or months.
      {"mm", 31.5, "01"},
      {"hh-mm", 31.51, "12-14"},
      {"mm:ss", 31.51, "14:24"},
      {"s:m", 31.51, "24:14"},
      {"mm:hh", 31.51, "01:12"},
      {"h \"x\" m d m", 31.51, "12 x 14 31 1"},
      {"[h] mm", 31.51, "756 14"},
      {"h:mmm", 31.51, "12:Jan"},
  });
}

TEST(NumberFormatTest, EveryDayOfThreeCenturies) {
  constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  constexpr std::array<const char*, 7> kNames = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  const auto format = NumberFormat::Parse("yyyy m d ddd");
  int serial = 0;
  for (int year = 1900; year < 2200; ++year) {
    // The date system treats 1900 as a leap year.
    const bool is_leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 || year == 1900;
    for (int month = 1; month <= 12; ++month) {
      const int days = kDays.at(static_cast<size_t>(month - 1)) + (month == 2 && is_leap ? 1 : 0);
      for (int day = 1; day <= days; ++day) {
        ++serial;
        std::string out;
        format->AppendNumber(out, serial, DateSystem::k1900);
        ASSERT_EQ(out, std::to_string(year) + ' ' + std::to_string(month) + ' ' + std::to_string(day) + ' ' +
                           kNames.at(static_cast<size_t>(serial - 1) % 7));
      }
    }
  }
}

TEST(NumberFormatTest, TextsAndBooleans) {
  const struct {
    const char *code, *text, *shown;
  } cases[] = {
      {"General", "abc", "abc"},
      {"0.00", "abc", "abc"},
      {"0;0;0", "abc", "abc"},
      {"m/d/yyyy", "abc", "abc"},
      {"@", "abc", "abc"},
      {"-@-@", "abc", "-abc-abc"},
      {"0;@\" !\"", "abc", "abc !"},
      {";;;", "abc", ""},
      {"0;0;0;\"text\"", "abc", "text"},
      {"0;0;0;[Red]_(@_)", "abc", " abc "},
      {"0;0;0;General\"'\"", "abc", "abc'"},
      {"0;0;0;0", "abc", "abc"},
      {"@", "", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(ShowText(c.code, c.text), c.shown) << c.code;
  ExpectShown({{"@", 1234567890000, "1.23457E+12"}, {"\"a\"@", -26.5, "-26.5"}});

  // The text is complete at first, and limited to a visible length in the second case.
  const std::string text(2000, 'x');
  EXPECT_EQ(ShowText("@", text), text);
  EXPECT_EQ(ShowText("(@)@@", text), "(" + text + ")");
  EXPECT_EQ(ShowText("@@", text.substr(0, 1000)), text);

  std::string out;
  NumberFormat::Parse("-@-")->AppendBoolean(out, true);
  NumberFormat::Parse("0.00")->AppendBoolean(out, false);
  EXPECT_EQ(out, "-TRUE-FALSE");
}

TEST(NumberFormatTest, KindsOfFormats) {
  for (const char* code : {"m/d/yyyy", "m/d/yy h:mm", "[h]:mm dd", "0;mm", "[$-F800]", "e", "[Red]d;@"})
    EXPECT_TRUE(NumberFormat::Parse(code)->IsDate()) << code;
  for (const char* code : {"General", "0", "@", "\"m/d\"", "\\d0", "[Red]0", "[$USD]0", "_d0", "h:mm", "[h]",
                           "[mm]:ss.0", "AM/PM", "[$-F400]"})
    EXPECT_FALSE(NumberFormat::Parse(code)->IsDate()) << code;
  for (const char* code : {"", "General", "GENERAL", "[Red]General", "[$-409]General"})
    EXPECT_TRUE(NumberFormat::Parse(code)->IsGeneral()) << code;
  for (const char* code : {"0", "@", "General;General", "General\" \"", "[>1]General", "General;@"})
    EXPECT_FALSE(NumberFormat::Parse(code)->IsGeneral()) << code;
}

TEST(NumberFormatTest, RefusesWhatExcelRefuses) {
  const char* const codes[] = {// Left open.
                               "\"abc", "0\\", "0_", "0*", "[Red", "[", "0]", "[]0", "[$-409",
                               // Too many sections, or sections in the wrong place.
                               "0;0;0;0;0", "@;0", "0;@;0", "@;@", "[>1]0;[>2]0;[>3]0", "[>5]@", "[>1][<2]0",
                               "0[>5]", "0[Red]", "[Red][Blue]0",
                               // Unknown elements.
                               "[>]0", "[>=x]0", "[=1=]0", "[>1e999]0", "[foo]0", "[Color 57]0", "[Color0]0",
                               "[DBNum5]0", "[ENG]0", "n", "0 n", "abc foo", "ss.0000",
                               // Numbers, dates, texts and General don't mix.
                               "yyyy 0", "# y", "hh:00", "m/2001", "$0.0M", "0 d", "0/km", "0@", "d@",
                               "General 0", "General d", "General@", "General%",
                               // Invalid numbers.
                               "0.0E+", "0.00e+00", "0.00E+0.0", "0E+0E+0", "0/0/0", "0.0/0", "0 ?/1#",
                               "?/1234567890",
                               // Elapsed units in invalid places.
                               "HH[MM]", "[m]:[s]", "[h]:[mm]", "[s]:mm"};
  for (const char* code : codes) EXPECT_EQ(NumberFormat::Parse(code), nullptr) << code;
  for (const char* code : {"[Color1]0", "[Color 56]0"}) EXPECT_NE(NumberFormat::Parse(code), nullptr) << code;
  EXPECT_NE(NumberFormat::Parse(std::string(500, '0')), nullptr);
  EXPECT_EQ(NumberFormat::Parse(std::string(1'000'000, '0')), nullptr);
}

TEST(NumberFormatTest, BuiltinFormats) {
  EXPECT_EQ(BuiltinNumberFormat(0), "General");
  EXPECT_EQ(BuiltinNumberFormat(14), "m/d/yyyy");
  EXPECT_EQ(BuiltinNumberFormat(22), "m/d/yyyy h:mm");
  EXPECT_EQ(BuiltinNumberFormat(37), "#,##0_);(#,##0)");
  EXPECT_EQ(BuiltinNumberFormat(49), "@");
  int count = 0;
  std::string dates, notWritten;
  for (int id = -1; id < 200; ++id) {
    const auto code = BuiltinNumberFormat(id);
    count += code.empty() ? 0 : 1;
    ASSERT_NE(NumberFormat::Parse(code), nullptr) << id;
    if (NumberFormat::Parse(code)->IsDate()) dates += std::to_string(id) + " ";
    if (!code.empty() && BuiltinNumberFormatId(code) != id) {
      notWritten += std::to_string(id) + "=" + std::string(code) + " ";
    }
  }
  EXPECT_EQ(count, 55);
  EXPECT_EQ(dates, "14 15 16 17 22 27 28 29 30 31 36 50 51 52 53 54 55 56 57 58 ");
  EXPECT_EQ(notWritten,
            "27=m/d/yyyy 28=m/d/yyyy 29=m/d/yyyy 30=m/d/yyyy 31=m/d/yyyy 32=h:mm:ss 33=h:mm:ss 34=h:mm:ss "
            "35=h:mm:ss 36=m/d/yyyy 50=m/d/yyyy 51=m/d/yyyy 52=m/d/yyyy 53=m/d/yyyy 54=m/d/yyyy "
            "55=m/d/yyyy 56=m/d/yyyy 57=m/d/yyyy 58=m/d/yyyy ");
  EXPECT_EQ(BuiltinNumberFormatId("yyyy"), std::nullopt);
  ExpectShown({
      {"# ?/?", 0.75, " 3/4"},
      {BuiltinNumberFormat(8).data(), -1234.5, "($1,234.50)"},
      {BuiltinNumberFormat(13).data(), 0.75, "  3/4 "},
      {BuiltinNumberFormat(41).data(), 0, " - "},
      {BuiltinNumberFormat(47).data(), 0.0005, "00:43.2"},
      {BuiltinNumberFormat(48).data(), 12345, "12.3E+3"},
  });
}

TEST(NumberFormatTest, GeneralReadsBack) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const double value =
        std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 1900) - 1000);
    std::string text;
    AppendGeneral(text, value);
    double back = 0;
    std::from_chars(text.data(), text.data() + text.size(), back);
    ASSERT_NEAR(back / value, 1, 6e-5) << text;  // "1.2346E+100" has five digits
    ASSERT_LE(text.size(), 12u) << text;
  }
}

TEST(NumberFormatTest, SurvivesAnyCodeAndValue) {
  constexpr std::array<std::string_view, 40> kPieces = {
      "0",  "#",  "?",  ".", ",",       "/",     "%",     "@",     ";",       ":",
      " ",  "E+", "E-", "e", "General", "AM/PM", "a/p",   "y",     "m",       "d",
      "h",  "s",  "g",  "b", "B2",      "[h]",   "[>=1]", "[Red]", "[$-411]", "[$-F800]",
      "\"", "\\", "_",  "*", "[",       "]",     "7",     "x",     "\xC3",    "\xF0\x9F\x98\x80"};
  using Limits = std::numeric_limits<double>;
  const double most = Limits::max(), endless = Limits::infinity(), nothing = Limits::quiet_NaN();
  const double values[] = {0,        -0.0,   1,    -1,    0.1,     59.99999, 2958465.9999999,
                           1e15 / 3, 1e-320, most, -most, endless, nothing};
  std::mt19937 random(1);
  int accepted = 0;
  for (int i = 0; i < 40000; ++i) {
    std::string code;
    for (size_t n = random() % 12; n > 0; --n) code += kPieces.at(random() % kPieces.size());
    const auto format = NumberFormat::Parse(code);
    if (!format) continue;
    ++accepted;
    for (const double value : values) {
      for (const DateSystem dates : {DateSystem::k1900, k1904}) {
        std::string out;
        format->AppendNumber(out, value, dates);
        ASSERT_LE(out.size(), 32 * code.size() + 500) << code;
      }
    }
    std::string out;
    format->AppendText(out, code);
    ASSERT_LE(out.size(), code.size() * (code.size() + 1)) << code;
  }
  EXPECT_GT(accepted, 4000);

  std::string out;
  NumberFormat::Parse(std::string(1000, '@'))->AppendText(out, std::string(30000, 'x'));
  EXPECT_LT(out.size(), 1'000'000u);
}

/// A case in which Excel's result differs from the collection.
struct CorpusException {
  std::string_view format, value, reason;
};

constexpr CorpusException kExceptions[] = {
    {"# ?\?/?????????", "0.123251512342345",
     "Excel pads a denominator on its right, as it does in every other case: \" 480894/3901729  \""},
    {"[Red][<=-25]General;[Blue][>=25]General;[Green]General;[Yellow]General", "-25",
     "Excel shows no sign in a section whose condition only negative numbers meet: \"25\""},
};

std::vector<std::string> SplitAtTabs(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == '\t')
      fields.emplace_back();
    else
      fields.back() += c;
  }
  return fields;
}

std::string ShowCorpusCase(const std::vector<std::string>& fields) {
  const std::string& code = fields[0];
  const std::string& value = fields[1];
  if (fields[3] != "n") return ShowText(code, value);
  double number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return Show(code, number, fields[4] == "1" ? k1904 : DateSystem::k1900);
}

TEST(NumberFormatTest, CollectedCases) {
  std::ifstream file(std::filesystem::path(test::kCorpusFolder) / "number_formats.tsv");
  if (!file) GTEST_SKIP() << "The collection of number format cases (number_formats.tsv) isn't here.";
  std::string line;
  std::getline(file, line);  // Skip the names of the columns.
  int cases = 0;
  size_t exceptions = 0;
  while (std::getline(file, line)) {
    const auto fields = SplitAtTabs(line);
    ASSERT_EQ(fields.size(), 7u) << line;
    std::string expected = fields[2];
    std::string shown = ShowCorpusCase(fields);
    if (fields[5] == "0") {
      std::erase(expected, ' ');
      std::erase(shown, ' ');
    }
    ++cases;
    const auto* exception = std::find_if(std::begin(kExceptions), std::end(kExceptions), [&](const auto& e) {
      return e.format == fields[0] && e.value == fields[1];
    });
    if (exception == std::end(kExceptions)) {
      EXPECT_EQ(shown, expected) << line;
    } else {
      ++exceptions;
      EXPECT_NE(shown, expected) << "No longer an exception: " << line << " (" << exception->reason << ")";
    }
  }
  EXPECT_GT(cases, 1000);
  EXPECT_EQ(exceptions, std::size(kExceptions));
}

}  // namespace
}  // namespace plotsmith::xlsx
