#include <gtest/gtest.h>
#include <string>

#include "runtime/Strings.h"

namespace plotsmith::runtime {
namespace {

TEST(StringsTest, CountInUtf16Units) {
  const std::string clef =
      "a\xF0\x9D\x84\x9E"
      "b";  // U+1D11E has two units.
  EXPECT_EQ(Len(clef), 4u);
  const std::u16string units = ToUtf16(clef);
  const std::string first = ToUtf8(units.substr(0, 2)), second = ToUtf8(units.substr(2));
  // A cut through a pair leaves two halves, which are a character again when they are joined.
  EXPECT_EQ(ToUtf8(ToUtf16(first) + ToUtf16(second)), clef);
  EXPECT_EQ(ToUtf16("\xFF\xC3"), (std::u16string{0xFFFD, 0xFFFD}));
}

TEST(StringsTest, UpperCase) {
  EXPECT_EQ(UCase("straße äöü ÿ ſı"), "STRAßE ÄÖÜ Ÿ ſı");
  std::string scratch;
  const std::string upper = "ALREADY 1";
  EXPECT_EQ(UCase(upper, scratch).data(), upper.data()) << "nothing to do, nothing copied";
  EXPECT_TRUE(EqualsIgnoreCase("Größe", "GRÖßE"));
  EXPECT_TRUE(EqualsIgnoreCase("", ""));
  const std::pair<const char*, const char*> different[] = {
      {"a", "ab"}, {"ab", ""}, {"a", "é"}, {"ſ", "S"}, {"größe", "GRößi"}, {"ı", "I"}, {"[", "{"}};
  for (const auto& [a, b] : different) {
    EXPECT_FALSE(EqualsIgnoreCase(a, b)) << a << b;
    EXPECT_FALSE(EqualsIgnoreCase(b, a)) << b << a;
  }
  EXPECT_EQ(Trim("  a b\t "), "a b\t");
  EXPECT_EQ(Replace("aXbXX", "X", "--"), "a--b----");
}

}  // namespace
}  // namespace plotsmith::runtime
