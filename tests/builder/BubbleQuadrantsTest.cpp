#include "builder/ChartRefreshDriver.h"
#include "common/RunVariables.h"
#include "tests/support/ChartCallsTest.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

Definition WithSettings(std::initializer_list<const char*> names) {
  Definition definition = BubbleDefinition();
  definition.rest += test::Settings(names, "static-attributes");
  return definition;
}

class BubbleQuadrantsTest : public test::ChartCallsTest {
 protected:
  /// Returns the calls that make the quadrants: all calls from the first that shows or scales an axis.
  Lines Quadrants(const Lines& calls) {
    for (std::size_t i = 0; i < calls.size(); ++i) {
      if (calls[i].starts_with("Chart.HasAxis("))
        return {calls.begin() + static_cast<std::ptrdiff_t>(i), calls.end()};
    }
    return {};
  }
};

TEST_F(BubbleQuadrantsTest, OrderOfCalls) {
  Lines expected;
  const auto axis = [&](const S& type, const Lines& scale) {
    const S object = "Chart.Axes(" + type + ", 1).";
    expected.push_back("Chart.HasAxis(" + type + ") = True");
    for (const char* line : {"HasMajorGridlines = True", "HasMinorGridlines = False"})
      expected.push_back(object + line);
    for (const S& line : scale) expected.push_back(object + line);
    for (const char* line :
         {"Crosses = -4105", "ReversePlotOrder = False", "ScaleType = -4132", "DisplayUnit = -4142",
          "TickLabelPosition = -4134", "Border.LineStyle = -4142"}) {
      expected.push_back(object + line);
    }
    expected.push_back("Chart.HasAxis(" + type + ") = True");
  };
  axis("1", {"MinimumScale = 0", "MaximumScale = 22", "MajorUnit = 11"});
  axis("2", {"MajorUnitIsAuto = True", "MajorUnit"});
  expected.push_back("Chart.PlotArea.Border.Weight = 2");
  expected.push_back("Chart.PlotArea.Border.LineStyle = -4105");
  Lines calls = Quadrants(ChartCalls(
      BubbleBook({{"A", "x", 4, -3, 5}, {"B", "x", 20, 50, 4}}, WithSettings({"autoscale-x", "quadrants"}))));
  for (S& line : calls) {
    // The host chooses the scale of the other axis.
    if (line.starts_with("Chart.Axes(2, 1).MajorUnit = ")) line = "Chart.Axes(2, 1).MajorUnit";
  }
  EXPECT_EQ(calls, expected);
  EXPECT_TRUE(Messages().empty());
  SaveAndReopen();
  const auto x = Chart()->Axes(excel::xlCategory, excel::xlPrimary);
  EXPECT_EQ(x->MinimumScale(), 0);
  EXPECT_EQ(x->MaximumScale(), 22);
}

TEST_F(BubbleQuadrantsTest, ScalesFromTheData) {
  struct Case {
    double first, second;
    Lines scale;
  };
  for (const Case& c : {Case{4, 20, {"MinimumScale = 0", "MaximumScale = 22", "MajorUnit = 11"}},
                        Case{-5, 20, {"MinimumScale = -7", "MaximumScale = 22", "MajorUnit = 14.5"}},
                        Case{-20, -5, {"MinimumScale = -22", "MaximumScale = 0", "MajorUnit = 11"}},
                        Case{0, 0, {"MinimumScale = 0", "MaximumScale = 0"}},
                        Case{-5, 0, {"MinimumScale = -5", "MaximumScale = 0", "MajorUnit = 2.5"}},
                        Case{0.25, 0.5, {"MinimumScale = 0", "MaximumScale = 0"}}}) {
    const Lines calls =
        ChartCalls(BubbleBook({{"A", "x", c.first, c.second, 5}, {"B", "x", c.second, c.first, 4}},
                              WithSettings({"quadrants", "autoscale-x", "autoscale-y"})));
    for (const S axis : {"Chart.Axes(1, 1).", "Chart.Axes(2, 1)."}) {
      Lines expected, found;
      for (const S& line : c.scale) expected.push_back(axis + line);
      for (const char* member : {"MinimumScale", "MaximumScale", "MajorUnit ="}) {
        for (const S& line : With(calls, axis + member)) found.push_back(line);
      }
      EXPECT_EQ(found, expected);
    }
  }
}

TEST_F(BubbleQuadrantsTest, DrawnOnlyIfWantedAndAlwaysScaledOnANewChart) {
  EXPECT_TRUE(
      With(ChartCalls(BubbleBook({{"A", "x", 4, 20, 5}}, WithSettings({"autoscale-x", "autoscale-y"}))),
           "Scale =")
          .empty());
  Open(BubbleBook({{"A", "x", 4, 20, 5}}, WithSettings({"quadrants"})));
  lMethodType = 0;
  RefreshChart("VEX_Chart1");
  EXPECT_EQ(With(journal_, "MaximumScale"),
            (Lines{"Chart.Axes(1, 1).MaximumScale = 4", "Chart.Axes(2, 1).MaximumScale = 22"}));
}

TEST_F(BubbleQuadrantsTest, AHiddenAxisStaysHidden) {
  const auto book =
      BubbleBook({{"A", "x", 4, 20, 5}}, WithSettings({"quadrants", "autoscale-x", "autoscale-y"}));
  ChartCalls(book);
  Chart()->SetHasAxis(excel::xlCategory, false);
  const Lines calls = With(ChartCalls(), "HasAxis(1)");
  EXPECT_EQ(calls, (Lines{"Chart.HasAxis(1) = True", "Chart.HasAxis(1) = False"}));
  EXPECT_FALSE(Chart()->HasAxis(excel::xlCategory));
}

}  // namespace
}  // namespace plotsmith
