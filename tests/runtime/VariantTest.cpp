#include <gtest/gtest.h>
#include <limits>

#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"
#include "tests/support/ErrorOf.h"

namespace plotsmith::runtime {
namespace {

using test::ErrorOf;

TEST(VariantTest, NumbersAsText) {
  const std::pair<double, const char*> cases[] = {{0, "0"},
                                                  {-0.0, "0"},
                                                  {1, "1"},
                                                  {-12.5, "-12.5"},
                                                  {0.1 + 0.2, "0.3"},
                                                  {1.0 / 3, "0.333333333333333"},
                                                  {2.0 / 3, "0.666666666666667"},
                                                  {1e14, "100000000000000"},
                                                  {1e15, "1E+15"},
                                                  {123456789012345678, "1.23456789012346E+17"},
                                                  {-1e50, "-1E+50"},
                                                  {0.0001, "0.0001"},
                                                  {0.00001, "0.00001"},
                                                  {1e-15, "0.000000000000001"},
                                                  {1e-16, "1E-16"},
                                                  {1.0 / 3e5, "3.33333333333333E-06"},
                                                  {1e100, "1E+100"},
                                                  {12.34e-6, "0.00001234"},
                                                  {999999999999999.4, "999999999999999"},
                                                  {-0.00025, "-0.00025"},
                                                  {120, "120"},
                                                  {1.5e-20, "1.5E-20"},
                                                  {std::numeric_limits<double>::infinity(), "1.#INF"},
                                                  {-std::numeric_limits<double>::infinity(), "-1.#INF"},
                                                  {std::numeric_limits<double>::quiet_NaN(), "-1.#IND"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(CStr(value), text);
}

TEST(VariantTest, TextsAsNumbers) {
  const std::pair<const char*, double> cases[] = {
      {"12", 12},          {" 12 ", 12},        {"-1.5", -1.5},     {"1.5-", -1.5},     {"+.5", 0.5},
      {"5.", 5},           {"1,234.5", 1234.5}, {"1,2,3", 123},     {"$5", 5},          {"-$5", -5},
      {"(5)", -5},         {"($ 5 )", -5},      {"1e3", 1000},      {"1D-2", 0.01},     {"&HFF", 255},
      {"&HFFFF", -1},      {"&O17", 15},        {"5$", 5},          {"1E-400", 0},      {"\v\f5\r\n", 5},
      {"&H7FFF", 32767},   {"&H8000", -32768},  {"&H8000&", 32768}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
      {"&O177777", 65535}, {"&o7 ", 7},         {"&h1f", 31},       {"(5) $", -5},      {"- $ 5", -5},
      {"1d+2", 100},       {"1,e2", 100},       {"1E2", 100},       {"$-5", -5},        {"$ (5)", -5}};
  for (const auto& [text, value] : cases) {
    EXPECT_TRUE(IsNumeric(Variant(text))) << text;
    EXPECT_EQ(CDbl(text), value) << text;
  }
  for (const char* text :
       {"",      " ",    "abc",  "5%",    "1.2.3", "--5",  "(5",       "5)",  "1e",   "1 2",         ",5",
        "$",     "&H",   "&HG",  "12x",   "True",  "0x10", "1/2/2020", "inf", "nan",  "&H100000000", "&O8",
        "&",     "-&H1", "$&H1", "&HF F", "&X1",   "$$5",  "5$$",      "$5$", "(-5)", "-(5)",        "+5-",
        "((5))", "(5))", "1e+",  ".",     "-.",    ".e5",  "&_7"}) {
    EXPECT_FALSE(IsNumeric(Variant(text))) << text;
    EXPECT_EQ(ErrorOf([&] { CDbl(text); }), error::kTypeMismatch) << text;
  }
}

TEST(VariantTest, NumbersOutOfRange) {
  const std::string small = "0." + std::string(400, '0') + "1e3", large = std::string(400, '9') + "e-3";
  EXPECT_EQ(CDbl(small), 0);
  EXPECT_EQ(CDbl(".001e-9223372036854775808"), 0);
  EXPECT_EQ(CDbl("1E-99999999999999999999"), 0);
  for (const std::string& text : {large, std::string("1E99999999999999999999"), std::string("1E+400"),
                                  std::string("-1E+400"), std::string("10e9223372036854775807")}) {
    EXPECT_EQ(ErrorOf([&] { CDbl(text); }), error::kOverflow) << text;
    EXPECT_EQ(ErrorOf([&] { Val(std::string_view(text)); }), error::kOverflow) << text;
    EXPECT_FALSE(IsNumeric(Variant(text)));
  }
  EXPECT_EQ(CDbl("0E+999999999999999999999"), 0);
}

TEST(VariantTest, ConversionsOfOtherTypes) {
  EXPECT_EQ(CDbl(Variant()), 0);
  EXPECT_EQ(CStr(Variant()), "");
  EXPECT_EQ(CDbl(true), -1);
  EXPECT_EQ(CStr(true), "True");
  EXPECT_EQ(CDbl(Variant::Date{43831.5}), 43831.5);
  EXPECT_EQ(CStr(Variant::Date{43831}), "1/1/2020");
  EXPECT_EQ(CStr(Variant::Date{43831.75}), "1/1/2020 6:00:00 PM");
  EXPECT_EQ(CStr(Variant::Date{0}), "12:00:00 AM");
  EXPECT_EQ(CStr(Variant::Date{43831.9999999}), "1/2/2020");
  EXPECT_EQ(CStr(Variant::Date{43831 + 1.0 / 86400}), "1/1/2020 12:00:01 AM");
  EXPECT_EQ(CStr(Variant::Date{0.5}), "12:00:00 PM");
  EXPECT_EQ(CStr(Variant::Date{-0.25}), "6:00:00 AM");
  EXPECT_EQ(CStr(Variant::Date{1}), "12/31/1899");
  EXPECT_EQ(CStr(Variant::Date{13.0 / 24 + 61.0 / 86400}), "1:01:01 PM");
  for (const double beyond : {-657435.0, 2958466.0})
    EXPECT_EQ(ErrorOf([&] { CStr(Variant::Date{beyond}); }), error::kTypeMismatch);
  EXPECT_EQ(CStr(std::int32_t{-7}), "-7");
  EXPECT_EQ(CStr(false), "False");
  EXPECT_EQ(CDbl(false), 0);
  EXPECT_EQ(CDbl(std::int32_t{-7}), -7);
  EXPECT_TRUE(IsNumeric(Variant(1.5)));
  EXPECT_TRUE(IsNumeric(Variant(std::int32_t{1})));
  EXPECT_EQ(Sum(1e308, -1e308), 0);
  EXPECT_EQ(ErrorOf([] { Sum(1e308, 1e308); }), error::kOverflow);
  EXPECT_EQ(CStr(Variant::Date{-1.25}), "12/29/1899 6:00:00 AM");
  EXPECT_EQ(CStr(Variant::Date{-657434}), "1/1/100");
  EXPECT_EQ(CStr(Variant::Date{2958465.75}), "12/31/9999 6:00:00 PM");
  EXPECT_EQ(ErrorOf([] { CStr(Variant::Date{1e300}); }), error::kTypeMismatch);
  for (const auto& value : {kNull, Variant(Variant::Error{2007})}) {
    const int number = value.IsNull() ? error::kInvalidNull : error::kTypeMismatch;
    EXPECT_EQ(ErrorOf([&] { CStr(value); }), number);
    EXPECT_EQ(ErrorOf([&] { CDbl(value); }), number);
    EXPECT_EQ(ErrorOf([&] { CLng(value); }), number);
    EXPECT_FALSE(IsNumeric(value));
  }
  EXPECT_TRUE(IsNumeric(Variant()));
  EXPECT_TRUE(IsNumeric(Variant(false)));
  EXPECT_FALSE(IsNumeric(Variant(Variant::Date{1})))
      << "a date isn't a number, although it can be converted to one";
}

TEST(VariantTest, WholeNumbersRoundHalvesToEven) {
  const std::pair<double, int> cases[] = {{0.5, 0},  {1.5, 2},   {2.5, 2},
                                          {-0.5, 0}, {-1.5, -2}, {2147483647.4, 2147483647}};
  for (const auto& [value, whole] : cases) EXPECT_EQ(CLng(value), whole) << value;
  for (const double beyond : {2147483647.5, -2147483648.6})
    EXPECT_EQ(ErrorOf([&] { CLng(beyond); }), error::kOverflow);
  EXPECT_EQ(CLng(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(CLng(std::int32_t{9}), 9);
  EXPECT_EQ(ErrorOf([] { CLng("ten"); }), error::kTypeMismatch);
  EXPECT_EQ(CLng(" 7 "), 7);
}

TEST(VariantTest, Booleans) {
  for (const char* text : {"True", "tRUE", "#TRUE#", "1", "-0.5"}) EXPECT_TRUE(CBool(text)) << text;
  for (const char* text : {"False", "FALSE", "0", "#FALSE#"}) EXPECT_FALSE(CBool(text)) << text;
  for (const char* text : {"yes", "", "T"})
    EXPECT_EQ(ErrorOf([&] { CBool(text); }), error::kTypeMismatch) << text;
}

TEST(VariantTest, ValReadsTheLeadingNumber) {
  const std::pair<const char*, double> cases[] = {
      {"11.0", 11},      {"16.0.1234", 16}, {"9pt", 9},     {" 1 2 3 ", 123}, {"-3.5e2x", -350},
      {"1e", 1},         {"1d2", 100},      {"abc", 0},     {"", 0},          {"$5", 0},
      {"1,5", 1},        {".5.5", 0.5},     {"&HFFx", 255}, {"&HFFFF", -1},   {"&HFFFF&", 65535},
      {"-1E+50", -1e50}, {"\t7\n", 7},      {"-", 0},       {"+5", 5},        {"&O17", 15},
      {"&o18", 1},       {"&X12", 0},       {"&h1g", 1},    {"&H", 0},        {"&HG", 0},
      {"1\n2", 12},      {"1\r2", 12},      {"-+5", 0},     {"&O7&", 7},      {"&HABCDEF", 11259375}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(std::string_view(text)), value) << text;
  EXPECT_EQ(Val(Variant(2.25)), 2.25);
}

}  // namespace
}  // namespace plotsmith::runtime
