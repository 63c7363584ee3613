#include <gtest/gtest.h>
#include <set>
#include <string>

#include "tests/support/Patterns.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/rules/ChartTypes.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

/// The tokens of an enumeration in ECMA-376-1, separated by blanks.
constexpr const char* kPresetPatterns =
    " pct5 pct10 pct20 pct25 pct30 pct40 pct50 pct60 pct70 pct75 pct80 pct90 horz vert ltHorz ltVert dkHorz "
    "dkVert narHorz narVert dashHorz dashVert cross dnDiag upDiag ltDnDiag ltUpDiag dkDnDiag dkUpDiag "
    "wdDnDiag wdUpDiag dashDnDiag dashUpDiag diagCross smCheck lgCheck smGrid lgGrid dotGrid smConfetti "
    "lgConfetti horzBrick diagBrick solidDmnd openDmnd dotDmnd plaid sphere weave divot shingle wave trellis "
    "zigZag ";
constexpr const char* kMarkers = " auto none square diamond triangle x star dot dash circle plus picture ";
constexpr const char* kUnits =
    " hundreds thousands tenThousands hundredThousands millions tenMillions hundredMillions billions "
    "trillions ";

TEST(ChartEnumerationsTest, NumbersNamesAndTokensMatch) {
  const struct {
    const Enumeration& enumeration;
    S name;  ///< the common beginning of the members' names
    S tokens;
  } cases[] = {
      {kLegendPositions, "xlLegendPosition", " r l t b tr "},
      {kLabelPositions, "xlLabelPosition", " ctr outEnd inEnd inBase bestFit l r t b "},
      {kPatterns, "msoPattern", kPresetPatterns},
      {kInteriorPatterns, "xlPattern", kPresetPatterns},
      {kLineStyles, "xl", " solid dash dashDot sysDot lgDashDotDot "},
      {kLineWeights, "xl", " 3175 12700 25400 38100 "},
      {kMarkerStyles, "xlMarkerStyle", kMarkers},
      {kTickLabelPositions, "xlTickLabelPosition", " nextTo low high none "},
      {kCrosses, "xl", " autoZero max min "},
      {kDisplayUnits, "xl", kUnits},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name + c.tokens);
    std::set<S> names;
    for (const EnumerationEntry& entry : c.enumeration.entries) {
      const S name(entry.name), token(entry.token);
      EXPECT_TRUE(test::IsMatch(name, c.name + "[A-Z0-9][A-Za-z0-9]*")) << name;
      EXPECT_TRUE(names.insert(name).second) << name;
      EXPECT_NE(c.tokens.find(" " + token + " "), S::npos) << token;
      EXPECT_EQ(c.enumeration.Token(entry.number), token) << "the number of another member";
      EXPECT_EQ(c.enumeration.Number(token), entry.number) << "the token of another member";
    }
    EXPECT_FALSE(c.enumeration.Token(-1));
    EXPECT_TRUE(c.enumeration.absent.empty() || c.enumeration.Number(c.enumeration.absent));
  }
  for (const ChartTypeEntry& entry : kChartTypes) EXPECT_EQ(FindChartType(entry.number), &entry);
  // The members of the patterns have consecutive numbers.
  for (std::int32_t number = 1; number <= 54; ++number) EXPECT_TRUE(kPatterns.Token(number)) << number;
}

}  // namespace
}  // namespace plotsmith::xlsx
