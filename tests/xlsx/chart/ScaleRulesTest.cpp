#include <gtest/gtest.h>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {
namespace {

TEST(ScaleRulesTest, FollowsThePublishedRules) {
  const struct {
    const char* what;
    double least, greatest;
    AxisSettings settings;
    double minimum, maximum, majorUnit;
  } cases[] = {
      {"space above the largest value", 0, 100, {}, 0, 120, 20},
      {"the space ends below the next unit", 0, 90, {}, 0, 100, 10},
      {"the space ends exactly at the next unit", 0, 19, {}, 0, 20, 2},
      {"small numbers", 0.01, 0.04, {}, 0, 0.045, 0.005},
      {"large numbers", 1e9, 7e9, {}, 0, 8e9, 1e9},
      {"a single value is measured from zero", 10, 10, {}, 0, 12, 2},
      {"also below it", -10, -10, {}, -12, 0, 2},
      {"values far from zero and close together", 90, 100, {}, 84, 102, 2},
      {"a sixth isn't close together", 100, 120, {}, 0, 140, 20},
      {"the same below zero", -100, -90, {}, -102, -84, 2},
      {"all below", -40, -5, {}, -45, 0, 5},
      {"on both sides, with space on both", -20, 40, {}, -30, 50, 10},
      {"only zeros", 0, 0, {}, 0, 1, 0.1},
      {"no space in 3-D", 0, 100, {.headroom = false}, 0, 100, 10},
      {"a manual limit replaces the data's", 5, 100, {.minimum = 50}, 50, 110, 10},
      {"a manual limit isn't rounded", 5, 100, {.maximum = 77}, 0, 77, 10},
      {"manual limits that exclude the data", 5, 100, {.minimum = 200, .maximum = 300}, 200, 300, 10},
      {"a manual unit", 0, 100, {.majorUnit = 25}, 0, 125, 25},
      {"powers", 3, 4000, {.logBase = 10}, 1, 10000, 10},
      {"powers of one", 5, 5, {.logBase = 10}, 1, 10, 10},
      {"a logarithm has no zero", 0, 50, {.logBase = 10}, 1, 100, 10},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const AxisScale scale = ScaleAxis(c.least, c.greatest, c.settings);
    EXPECT_DOUBLE_EQ(scale.minimum, c.minimum);
    EXPECT_DOUBLE_EQ(scale.maximum, c.maximum);
    EXPECT_DOUBLE_EQ(scale.majorUnit, c.majorUnit);
  }
  for (const double wild : {1e308, 5e-324, 1e-300}) {
    const AxisScale scale = ScaleAxis(-wild, wild);
    EXPECT_LE(scale.minimum, scale.maximum);
    EXPECT_GT(scale.majorUnit, 0) << wild;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx
