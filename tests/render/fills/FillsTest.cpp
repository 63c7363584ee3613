#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

#include "render/fills/BallFill.h"
#include "render/fills/GradientGeometry.h"
#include "render/fills/LitFill.h"
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
      "<path d=\"M0 0h8v1h-8zM0 1h8v1h-8zM0 4h8v1h-8zM0 5h8v1h-8z\" fill=\"#F00\"/></pattern><linearGradient "
      "id=\"f2\" x1=\"0\" y1=\".5\" x2=\"1\" y2=\".5\"><stop offset=\"0\" stop-color=\"#F00\"/>"
      "<stop offset=\"1\" stop-color=\"#00F\" stop-opacity=\".5\"/></linearGradient><linearGradient "
      "id=\"f3\" x1=\"-.92\" y1=\"1.58\" x2=\"10.92\" y2=\"8.42\" gradientUnits=\"userSpaceOnUse\">"
      "<stop offset=\"0\" stop-color=\"#F00\"/><stop offset=\"1\" stop-color=\"#00F\" stop-opacity=\".5\"/>"
      "</linearGradient><linearGradient id=\"f4\" x1=\".09\" y1=\"13.5\" x2=\"39.91\" y2=\"36.5\" "
      "gradientUnits=\"userSpaceOnUse\"><stop offset=\"0\" stop-color=\"#F00\"/><stop offset=\"1\" "
      "stop-color=\"#00F\" stop-opacity=\".5\"/></linearGradient></defs>\n");
}

/// Returns the colours of a fill: the stops of a gradient, or the foreground and the background.
std::vector<Color> ColorsOf(const Fill& fill) {
  if (const auto* solid = std::get_if<SolidFill>(&fill)) return {solid->color};
  if (const auto* pattern = std::get_if<PatternFill>(&fill))
    return {pattern->foreground, pattern->background};
  std::vector<Color> colors;
  if (const auto* gradient = std::get_if<GradientFill>(&fill)) {
    for (const GradientStop& stop : gradient->stops) colors.push_back(stop.color);
  }
  return colors;
}

TEST(FillsTest, ABallIsLitFromTheUpperLeft) {
  const Fill fill = AsBall(SolidFill{{100, 200, 0, 0.5}});
  const auto& ball = std::get<GradientFill>(fill);
  EXPECT_TRUE(ball.radial);
  EXPECT_EQ(ball.focus, (Point{0.35, 0.3}));
  EXPECT_EQ(ColorsOf(fill),
            (std::vector<Color>{{201, 236, 166, 0.5}, {100, 200, 0, 0.5}, {60, 120, 0, 0.5}}));
  const double positions[] = {0, 0.3, 0.8};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(ball.stops[i].position, positions[i]);
  EXPECT_NEAR(UnitRadiusOf(ball), std::hypot(0.65, 0.7), 1e-9);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(AsBall({})));
}

TEST(FillsTest, LightChangesEachColourOfAFill) {
  const Color dim{100, 50, 0, 0.5}, bright{200, 100, 0, 0.5}, grey{200, 200, 200, 1}, white{255, 255, 255, 1};
  const Color none{255, 255, 255, 0};
  GradientFill gradient;
  gradient.stops = {{0, dim}, {1, grey}};
  const struct {
    const char* what;
    Fill fill;
    std::vector<Color> lit;  ///< the colours with twice the light
    Color main;              ///< the colour of seams
    double seam;             ///< the width of a seam in points
  } cases[] = {
      {"solid", SolidFill{grey}, {white}, grey, 0.3},
      {"a transparent one", SolidFill{dim}, {bright}, dim, 0},
      {"gradient", gradient, {bright, white}, dim, 0},
      {"pattern", PatternFill{"pct5", dim, grey}, {bright, white}, grey, 0},
      {"none", {}, {}, none, 0},
      {"a gradient without stops", GradientFill{}, {}, none, 0},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(ColorsOf(Lit(test.fill, 2)), test.lit) << test.what;
    EXPECT_EQ(SeamOf(test.fill).color, test.main) << test.what;
    EXPECT_EQ(SeamOf(test.fill).width, test.seam) << test.what;
  }
}

}  // namespace
}  // namespace plotsmith::render
