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
  // No text ends with a half of the pair.
  const std::string beginnings[] = {"", "a", "a", clef.substr(0, 5), clef, clef};
  for (std::size_t count = 0; count < 6; ++count) EXPECT_EQ(Left(clef, count), beginnings[count]) << count;
  const std::u16string units = ToUtf16(clef);
  const std::string first = ToUtf8(units.substr(0, 2)), second = ToUtf8(units.substr(2));
  // A cut through a pair leaves two halves, which are a character again when they are joined.
  EXPECT_EQ(ToUtf8(ToUtf16(first) + ToUtf16(second)), clef);
  EXPECT_EQ(ToUtf16("\xFF\xC3"), (std::u16string{0xFFFD, 0xFFFD}));
}

TEST(StringsTest, UpperCase) {
  EXPECT_EQ(UCase("straße äöü ÿ ſı µm μ οδος ǆǅ ÅΩ"), "STRAßE ÄÖÜ Ÿ ſı µM Μ ΟΔΟς Ǆǅ ÅΩ");
  std::string scratch;
  const std::string upper = "ALREADY 1";
  EXPECT_EQ(UCase(upper, scratch).data(), upper.data()) << "nothing to do, nothing copied";
  EXPECT_TRUE(EqualsIgnoreCase("Größe", "GRÖßE"));
  EXPECT_TRUE(EqualsIgnoreCase("", ""));
  const std::pair<const char*, const char*> different[] = {{"a", "ab"}, {"ab", ""},         {"a", "é"},
                                                           {"ſ", "S"},  {"größe", "GRößi"}, {"ı", "I"},
                                                           {"µ", "μ"},  {"[", "{"}};
  for (const auto& [a, b] : different) {
    EXPECT_FALSE(EqualsIgnoreCase(a, b)) << a << b;
    EXPECT_FALSE(EqualsIgnoreCase(b, a)) << b << a;
  }
  EXPECT_EQ(Trim("  a b\t "), "a b\t");
  EXPECT_EQ(Replace("aXbXX", "X", "--"), "a--b----");
}

TEST(StringsTest, AnyBytesAreReadAsCharacters) {
  const std::u32string wrong(1, 0xFFFD);
  const struct {
    std::string_view bytes;
    std::u32string characters;
  } cases[] = {{"A\x7F", {0x41, 0x7F}},
               {"\xC2\x80\xDF\xBF", {0x80, 0x7FF}},
               {"\xE0\xA0\x80\xED\xA0\x80\xEF\xBF\xBF", {0x800, 0xD800, 0xFFFF}},
               {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", {0x10000, 0x10FFFF}},
               // Bytes that begin no character, characters that are cut off, too long or too large.
               {"\x80", wrong},
               {"\xBF\x41", wrong + U"A"},
               {"\xC1\xBF", wrong + wrong},
               {"\xC1\x41\x80\x80", wrong + U"A" + wrong + wrong},
               {"\xC2", wrong},
               {"\xC2\x41", wrong + U"A"},
               {"\xE0\x9F\xBF", wrong + wrong + wrong},
               {"\xE1\x80", wrong + wrong},
               {"\xE1\x80\x41", wrong + wrong + U"A"},
               {"\xE1\x41\x80", wrong + U"A" + wrong},
               {"\xF0\x8F\xBF\xBF", wrong + wrong + wrong + wrong},
               {"\xF1\x80\x80", wrong + wrong + wrong},
               {"\xF1\x80\x80\x41", wrong + wrong + wrong + U"A"},
               {"\xF4\x90\x80\x80", wrong + wrong + wrong + wrong},
               {"\xF5\x80\x80\x80", wrong + wrong + wrong + wrong}};
  for (const auto& c : cases) {
    std::u32string characters;
    std::string again;
    for (std::size_t at = 0; at < c.bytes.size();) {
      characters += NextCharacter(c.bytes, at);
      AppendUtf8(again, characters.back());
    }
    EXPECT_TRUE(characters == c.characters) << c.bytes;
    if (c.characters.find(0xFFFD) == std::u32string::npos) {
      EXPECT_EQ(again, c.bytes);
    }
  }
}

TEST(StringsTest, WordsEndAtBlanksAndBetweenEastAsianCharacters) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"", {}},
      {"one, two/three", {"one,", "two/three"}},
      {"naïve Ärger", {"naïve", "Ärger"}},
      {"東京都 年", {"東", "京", "都", "年"}},
      {"2024年度abc", {"2024", "年", "度", "abc"}},
      {"「東京」、カー", {"「東", "京」、", "カー"}},
      {"한국", {"한", "국"}},
      {"👨‍👩👍🏽x", {"👨‍👩", "👍🏽", "x"}},
  };
  for (const auto& [text, words] : cases) {
    std::vector<std::string> found;
    const std::string_view rest = text;
    for (std::size_t at = 0; (at = rest.find_first_not_of(' ', at)) < rest.size();) {
      const std::size_t end = WordEnd(rest, at);
      found.emplace_back(rest.substr(at, end - at));
      at = end;
    }
    EXPECT_EQ(found, words) << text;
  }
}

TEST(StringsTest, PositionsInsideOfCharactersAreRecognized) {
  constexpr std::string_view text = "aä東";
  const std::size_t starts[] = {0, 1, 1, 3, 3, 3, 6}, ends[] = {1, 3, 3, 6, 6, 6};
  for (std::size_t i = 0; i <= text.size(); ++i) EXPECT_EQ(CharacterStart(text, i), starts[i]) << i;
  for (std::size_t i = 0; i < text.size(); ++i) EXPECT_EQ(CharacterEnd(text, i), ends[i]) << i;
}

TEST(StringsTest, PairsOfUnitsAreOneCharacter) {
  const struct {
    std::u16string units;
    const char* text;
  } cases[] = {{{0xD800, 0xDC00}, "\xF0\x90\x80\x80"},
               {{0xDBFF, 0xDFFF}, "\xF4\x8F\xBF\xBF"},
               {{0xD834}, "\xED\xA0\xB4"},
               {{0xD834, 0x41},
                "\xED\xA0\xB4"
                "A"},
               {{0xD834, 0xE000}, "\xED\xA0\xB4\xEE\x80\x80"},
               {{0xDC00, 0xD800}, "\xED\xB0\x80\xED\xA0\x80"},
               {{0xD800, 0xD800, 0xDC00}, "\xED\xA0\x80\xF0\x90\x80\x80"},
               {{0xD7FF, 0xDC00}, "\xED\x9F\xBF\xED\xB0\x80"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ToUtf8(c.units), c.text);
    EXPECT_TRUE(ToUtf16(c.text) == c.units) << c.text;
    EXPECT_EQ(Len(c.text), c.units.size()) << c.text;
  }
}

TEST(StringsTest, LettersOfAnyScript) {
  for (const char32_t c : U"aZ\u00E4\u01C5\u02B0\u05D0\u4E2D") {
    if (c != 0) {
      EXPECT_TRUE(IsLetter(c)) << static_cast<unsigned>(c);
    }
  }
  for (const char32_t c : U"1_ \u0301\u0660\u2028") EXPECT_FALSE(IsLetter(c)) << static_cast<unsigned>(c);
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
  EXPECT_EQ(Replace("", "x", "y"), "");
}

}  // namespace
}  // namespace plotsmith::runtime
