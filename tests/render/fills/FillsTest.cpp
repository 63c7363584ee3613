#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

#include "render/fills/BallFill.h"
#include "render/fills/GradientGeometry.h"
#include "render/fills/Patterns.h"
#include "render/svg/SvgPaint.h"
#include "xlsx/chart/part/ChartEnumerations.h"

namespace plotsmith::render {
namespace {

int BitsOf(const PatternTile& tile) {
  return std::accumulate(tile.begin(), tile.end(), 0,
                         [](int sum, std::uint8_t row) { return sum + std::popcount(row); });
}

TEST(FillsTest, EveryPresetPatternHasATile) {
  std::set<PatternTile> tiles;
  for (const auto& entry : xlsx::kPatterns.entries) {
    const PatternTile* tile = FindPattern(entry.token);
    ASSERT_NE(tile, nullptr) << entry.token;
    EXPECT_TRUE(BitsOf(*tile) > 0 && BitsOf(*tile) < 64) << entry.token;
    tiles.insert(*tile);
  }
  EXPECT_EQ(tiles.size(), xlsx::kPatterns.entries.size() - 1);  // A cross and a large grid look the same.
  for (const char* none : {"", "aaa", "zzz", "pct1"}) EXPECT_EQ(FindPattern(none), nullptr) << none;
}

TEST(FillsTest, PercentagesGrowAndDiagonalsMirrorEachOther) {
  int before = 0;
  for (const char* preset : {"pct5", "pct10", "pct20", "pct25", "pct30", "pct40", "pct50", "pct60", "pct70",
                             "pct75", "pct80", "pct90"}) {
    const int bits = BitsOf(*FindPattern(preset));
    EXPECT_GT(bits, before) << preset;
    before = bits;
  }
  for (const char* kind : {"lt", "dk", "wd"}) {
    PatternTile mirrored = *FindPattern(std::string(kind) + "DnDiag");
    std::reverse(mirrored.begin(), mirrored.end());
    const PatternTile& up = *FindPattern(std::string(kind) + "UpDiag");
    bool found = false;
    for (int shift = 0; shift < 8; ++shift) {
      found |= mirrored == up;
      std::rotate(mirrored.begin(), mirrored.begin() + 1, mirrored.end());
    }
    EXPECT_TRUE(found) << kind;
  }
}

TEST(FillsTest, GradientsReachTheCornersOfTheirBounds) {
  struct Case {
    double angle;
    Point from, to;
  };
  const Rect bounds{10, 20, 40, 30};
  for (const Case& c : {Case{0, {10, 35}, {50, 35}}, Case{90, {30, 20}, {30, 50}},
                        Case{180, {50, 35}, {10, 35}}, Case{45, {12.5, 17.5}, {47.5, 52.5}}}) {
    GradientFill gradient;
    gradient.angle = c.angle;
    const GradientLine line = LineOf(gradient, bounds);
    EXPECT_NEAR(line.from.x, c.from.x, 1e-9) << c.angle;
    EXPECT_NEAR(line.from.y, c.from.y, 1e-9) << c.angle;
    EXPECT_NEAR(line.to.x, c.to.x, 1e-9) << c.angle;
    EXPECT_NEAR(line.to.y, c.to.y, 1e-9) << c.angle;
  }
}

TEST(FillsTest, SvgSharesWhatIsFilledAlike) {
  SvgDefinitions definitions;
  const Rect bounds{0, 0, 10, 10}, other{5, 5, 30, 40};
  const Color red{255, 0, 0, 1}, half{0, 0, 255, 0.5};
  const PatternFill pattern{"dkHorz", red, half};
  EXPECT_EQ(FillAttributes(pattern, bounds, definitions), FillAttributes(pattern, other, definitions));
  GradientFill gradient;
  gradient.stops = {{0, red}, {1, half}};
  EXPECT_EQ(FillAttributes(gradient, bounds, definitions), FillAttributes(gradient, other, definitions));
  gradient.angle = 30;
  const std::string first = FillAttributes(gradient, bounds, definitions);
  EXPECT_NE(FillAttributes(gradient, other, definitions), first);
  EXPECT_EQ(
      definitions.Text(),
      "<defs><pattern id=\"f1\" width=\"6\" height=\"6\" patternUnits=\"userSpaceOnUse\" viewBox=\"0 0 8 8\" "
      "shape-rendering=\"crispEdges\"><path d=\"M0 0h8v8h-8z\" fill=\"#00F\" fill-opacity=\".5\"/>"
      "<path d=\"M0 0h8v1h-8zM0 1h8v1h-8zM0 4h8v1h-8zM0 5h8v1h-8z\" fill=\"#F00\"/></pattern>"
      "<linearGradient id=\"f2\" x1=\"0\" y1=\".5\" x2=\"1\" y2=\".5\"><stop offset=\"0\" "
      "stop-color=\"#F00\"/>"
      "<stop offset=\"1\" stop-color=\"#00F\" stop-opacity=\".5\"/></linearGradient>"
      "<linearGradient id=\"f3\" x1=\"-.92\" y1=\"1.58\" x2=\"10.92\" y2=\"8.42\" "
      "gradientUnits=\"userSpaceOnUse\"><stop offset=\"0\" stop-color=\"#F00\"/><stop offset=\"1\" "
      "stop-color=\"#00F\" stop-opacity=\".5\"/></linearGradient>"
      "<linearGradient id=\"f4\" x1=\".09\" y1=\"13.5\" x2=\"39.91\" y2=\"36.5\" "
      "gradientUnits=\"userSpaceOnUse\"><stop offset=\"0\" stop-color=\"#F00\"/><stop offset=\"1\" "
      "stop-color=\"#00F\" stop-opacity=\".5\"/></linearGradient></defs>\n");
}

TEST(FillsTest, ABallIsLitFromTheUpperLeft) {
  const Color color{0x4F, 0x81, 0xBD, 0.5};
  const Fill fill = AsBall(SolidFill{color});
  const auto& ball = std::get<GradientFill>(fill);
  EXPECT_TRUE(ball.radial && ball.focus.x < 0.5 && ball.focus.y < 0.5);
  ASSERT_EQ(ball.stops.size(), 3);
  EXPECT_EQ(ball.stops[1].color, color);
  EXPECT_TRUE(ball.stops[0].color.red > color.red && ball.stops[2].color.red < color.red);
  for (const GradientStop& stop : ball.stops) EXPECT_EQ(stop.color.alpha, 0.5);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(AsBall({})));
}

}  // namespace
}  // namespace plotsmith::render
