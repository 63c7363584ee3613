#include "render/text/TextBlock.h"
#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::TextBlock;

/// A style whose letters are one point wide and two points high.
const render::TextStyle kSmall{{"Calibri", 2}, {}, {}, false};

Texts LinesOf(const TextBlock& block) {
  Texts lines;
  for (const render::TextLine& line : block.lines) {
    lines.emplace_back();
    for (const render::TextRun& run : line.runs) lines.back() += run.text;
  }
  return lines;
}

TEST(TextBlockTest, LinesBreakAtBlanksAndInsideOfLongWords) {
  const struct {
    S text;
    double width;
    Texts lines;
  } cases[] = {
      {"one two three", 100, {"one two three"}},
      {"one two three", 7, {"one two", "three"}},
      {"one two three", 6.9, {"one", "two", "three"}},
      {"one two   three", 8, {"one two", "three"}},
      {"one two   ", 7, {"one two"}},
      {"one   two", 8, {"one", "two"}},
      {"abcdefgh", 3, {"abc", "def", "gh"}},
      {"ab cdefgh ij", 3, {"ab", "cde", "fgh", "ij"}},
      {"abcdef gh", 4, {"abcd", "ef", "gh"}},
      {"abcdef gh", 5, {"abcde", "f gh"}},
      {"abc", 0.5, {"a", "b", "c"}},
      {"\u00C4\u00D6\u00DC", 2, {"\u00C4\u00D6", "\u00DC"}},
      {"one\ntwo three", 7, {"one", "two", "three"}},
      {"in 東京都庁前", 6, {"in 東京都", "庁前"}},
      {"one\n\ntwo", 100, {"one", "", "two"}},
      {"", 7, {""}},
      {"   ", 2, {""}},
  };
  const EvenMeasure measure;
  for (const auto& test : cases) {
    const TextBlock block = LayOut(test.text, kSmall, measure, test.width);
    EXPECT_EQ(LinesOf(block), test.lines) << test.text << test.width;
    std::size_t widest = 0;
    for (const S& line : test.lines) {
      widest = std::max(widest, static_cast<std::size_t>(runtime::Len(line)));
    }
    EXPECT_EQ(block.width, static_cast<double>(widest)) << test.text;
    EXPECT_EQ(block.height, 2.0 * static_cast<double>(test.lines.size())) << test.text;
  }
}

TEST(TextBlockTest, LettersOfStackedTextsAreBelowEachOther) {
  render::TextStyle style = kSmall;
  style.stacked = true;
  const TextBlock block = LayOut("a\u00C4\nb", style, EvenMeasure(), 1);
  EXPECT_EQ(LinesOf(block), (Texts{"a", "\u00C4", "b"}));
}

TEST(TextBlockTest, EndlessTextsHaveAsManyLinesAsAChart) {
  render::TextStyle stacked = kSmall;
  stacked.stacked = true;
  S lines, words;
  for (int i = 0; i < 500; ++i) {
    lines += "a\n";
    words += "a ";
  }
  const EvenMeasure measure;
  EXPECT_EQ(LayOut(lines, kSmall, measure).lines.size(), 201u);
  EXPECT_EQ(LayOut(words, kSmall, measure, 1).lines.size(), 201u);
  EXPECT_EQ(LayOut(S(500, 'a'), kSmall, measure, 1).lines.size(), 201u);
  EXPECT_EQ(LayOut(S(500, 'a'), stacked, measure).lines.size(), 200u);
}

TEST(TextBlockTest, RunsOfOneLookAreJoined) {
  render::Font bold = kSmall.font;
  bold.bold = true;
  const render::RichText text{
      {{{"one ", kSmall.font, {}}, {"two ", bold, {}}, {"three ", bold, {}}}}, {}, false};
  const TextBlock block = LayOut(text, EvenMeasure(), 50);
  ASSERT_EQ(block.lines.size(), 1u);
  const auto& [runs, widths, width, ascent, descent] = block.lines[0];
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].text, "one ");
  EXPECT_EQ(runs[1].text, "two three");
  EXPECT_EQ(widths, (Numbers{4, 9}));
  EXPECT_EQ(width, 13);
  EXPECT_EQ(ascent, 1.5);
  EXPECT_EQ(descent, 0.5);
}

TEST(TextBlockTest, TurnedBlocksAreAsLargeAsTheBoxAroundThem) {
  TextBlock block = LayOut("abcdef", kSmall, EvenMeasure());
  const double slanted = std::sqrt(3) / 2;
  const struct {
    double rotation, width, height;
  } cases[] = {{0, 6, 2},
               {90, 2, 6},
               {-90, 2, 6},
               {180, 6, 2},
               {30, 6 * slanted + 1, 3 + 2 * slanted},
               {-60, 3 + 2 * slanted, 6 * slanted + 1}};
  for (const auto& test : cases) {
    block.rotation = test.rotation;
    EXPECT_NEAR(block.TurnedWidth(), test.width, 1e-9) << test.rotation;
    EXPECT_NEAR(block.TurnedHeight(), test.height, 1e-9) << test.rotation;
  }
}

TEST(TextBlockTest, TheWidestWordIsMeasuredWithoutBlanks) {
  const std::pair<const char*, double> cases[] = {{"bbb aa", 3}, {"a\nbbbb cc", 4}, {"a bb ccc", 3},
                                                  {"", 0},       {"a ", 1},         {"東京 ab", 2}};
  for (const auto& [text, width] : cases)
    EXPECT_EQ(WidestWord(text, kSmall.font, EvenMeasure()), width) << text;
}

}  // namespace
}  // namespace plotsmith
