#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

class DataLabelsTest : public DrawingTest {};

S Shown(const S& which) { return "<c:" + which + " val=\"1\"/>"; }

TEST_F(DataLabelsTest, ShowWhatTheirSettingsSelect) {
  struct {
    S labels;
    Texts texts;
  } cases[] = {
      {Shown("showVal"), {"20", "80"}},
      {Shown("showPercent"), {"20%", "80%"}},
      {"<c:numFmt formatCode=\"0.0%\" sourceLinked=\"0\"/>" + Shown("showPercent"), {"20.0%", "80.0%"}},
      {"<c:numFmt formatCode=\"0.00\" sourceLinked=\"0\"/>" + Shown("showVal"), {"20.00", "80.00"}},
      {Shown("showVal") + Shown("showCatName"), {"North, 20", "South, 80"}},
      {Shown("showSerName") + Shown("showPercent") + "<c:separator>; </c:separator>",
       {"Series 0; 20%", "Series 0; 80%"}},
      {"<c:dLbl><c:idx val=\"0\"/><c:delete val=\"1\"/></c:dLbl>" + Shown("showVal"), {"80"}},
      {"<c:dLbl><c:idx "
       "val=\"1\"/><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:t>mine</a:t></a:r></a:p></c:rich></c:tx>" +
           Shown("showVal") + "</c:dLbl>",
       {"mine"}},
      {"", {}},
  };
  for (const auto& test : cases) {
    const S series = SeriesXml(0, {20, 80}, "<c:dLbls>" + test.labels + "</c:dLbls>", "",
                               CategoriesXml({"North", "South"}));
    const Drawing drawing = Draw(PlotXml("<c:pieChart><c:varyColors val=\"1\"/>" + series + "</c:pieChart>"));
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel), test.texts) << test.labels;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.labels;
  }
}

TEST_F(DataLabelsTest, OfPointsOutsideOfTheirAxisAreLeftOut) {
  const S shown = "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>";
  // A value below the scale, on it, above it, and at its ends.
  const Numbers values = {5, 15, 30, 20, 10}, both = {-5, 0, 20, -30, 3};
  const auto grouped = [](const char* element, const char* grouping, const S& series) {
    return GroupXml(element, "<c:grouping val=\"" + S(grouping) + "\"/>", series);
  };
  const S one = SeriesXml(0, values, shown), around = SeriesXml(0, both, shown);
  const S stack = SeriesXml(0, {15, 25, 4}, shown) + SeriesXml(1, {3, 3, 17}, shown);
  const struct {
    const char* what;
    S chart;
    Texts labels;
  } cases[] = {
      {"columns", ColumnsXml(one) + AxesXml("", ScalingXml("10", "20")), {"15", "30", "20", "10"}},
      {"bars",
       ColumnsXml(one, "", "clustered", "bar") + AxesXml("", ScalingXml("10", "20"), true),
       {"15", "30", "20", "10"}},
      {"areas",
       grouped("areaChart", "standard", one) + AxesXml("", ScalingXml("10", "20")),
       {"15", "30", "20", "10"}},
      {"lines", LinesXml(one) + AxesXml("", ScalingXml("10", "20")), {"15", "20", "10"}},
      {"columns on both sides",
       ColumnsXml(around) + AxesXml("", ScalingXml("-10", "10")),
       {"-5", "0", "20", "-30", "3"}},
      {"stacked columns",
       ColumnsXml(stack, "", "stacked") + AxesXml("", ScalingXml("0", "20")),
       {"15", "25", "4", "3", "17"}},
      {"stacked areas",
       grouped("areaChart", "stacked", stack) + AxesXml("", ScalingXml("0", "20")),
       {"15", "25", "4", "3", "17"}},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(TextsOf(Draw(PlotXml(test.chart)), Role::kDataLabel), test.labels) << test.what;
  }
}

TEST_F(DataLabelsTest, OfCrowdedPiesAreMovedApartAndTiedToTheirSlices) {
  const auto values = [](std::size_t large, std::size_t small) {
    Numbers list(large, 100);
    list.insert(list.end(), small, 1);
    return list;
  };
  const S leftOut = "The pie has no room for 71 of its data labels, which are left out.";
  struct {
    const char *what, *element, *position;
    Numbers values;
    std::size_t count, leaders;
    Texts notes;
  } cases[] = {
      {"few slices stay where they are", "pieChart", "outEnd", {10, 20, 30}, 3, 0, {}},
      {"small slices beside each other", "pieChart", "bestFit", values(3, 8), 11, 8, {}},
      {"the same in 3-D", "pie3DChart", "bestFit", values(3, 8), 11, 6, {}},
      {"all slices alike", "pieChart", "outEnd", values(0, 24), 24, 12, {}},
      {"more than have room", "pieChart", "outEnd", values(2, 90), 21, 19, {leftOut}},
  };
  for (const auto& test : cases) {
    Texts names;
    for (std::size_t i = 0; i < test.values.size(); ++i) names.push_back("Slice " + std::to_string(i + 1));
    const S labels = S("<c:dLbls><c:dLblPos val=\"") + test.position + "\"/>" + Shown("showCatName") +
                     Shown("showLeaderLines") + "</c:dLbls>";
    const S element(test.element);
    const Drawing drawing =
        Draw(PlotXml("<c:" + element + "><c:varyColors val=\"1\"/>" +
                     SeriesXml(0, test.values, labels, "", CategoriesXml(names)) + "</c:" + element + ">"));
    EXPECT_EQ(OverlapComplaints(drawing, Role::kDataLabel, 0.02), "") << test.what;
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel).size(), test.count) << test.what;
    EXPECT_EQ(ItemsOf(drawing, Role::kLeaderLine).size(), test.leaders) << test.what;
    EXPECT_EQ(notes_, test.notes) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

}  // namespace
}  // namespace plotsmith
