#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Rect;
using render::Role;
using S = std::string;
using Texts = std::vector<S>;

class DataLabelsTest : public DrawingTest {
 protected:
  Drawing DrawLabels(const S& element, const S& first, const S& labels,
                     const std::vector<double>& values = {20, 80}, const S& last = "") {
    const bool pie = element == "pieChart";
    const S series =
        SeriesXml(0, values, "<c:dLbls>" + labels + "</c:dLbls>", "", CategoriesXml({"North", "South"}));
    const S group =
        pie ? "<c:pieChart><c:varyColors val=\"1\"/>" + series + "</c:pieChart>"
            : GroupXml(element, first, series, last) + AxesXml("", "", first.find("\"bar\"") != S::npos);
    return Draw(PlotXml(group));
  }
};

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
    const Drawing drawing = DrawLabels("pieChart", "", test.labels);
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel), test.texts) << test.labels;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.labels;
  }
}

TEST_F(DataLabelsTest, AreAtTheirPositionOnBars) {
  for (const S direction : {"col", "bar"}) {
    for (const S position : {"outEnd", "inEnd", "ctr", "inBase"}) {
      const Drawing drawing =
          DrawLabels("barChart", "<c:barDir val=\"" + direction + "\"/><c:grouping val=\"clustered\"/>",
                     "<c:dLblPos val=\"" + position + "\"/>" + Shown("showVal"), {20, 80, -60});
      EXPECT_EQ(DrawingComplaints(drawing), "");
      const auto bars = BoxesOf(drawing, Role::kBar), labels = BoxesOf(drawing, Role::kDataLabel);
      ASSERT_EQ(labels.size(), 3u);
      for (std::size_t i = 1; i < 3; ++i) {
        // The distance of the label's middle from the base of the bar, in bar lengths.
        const bool flat = direction == "bar";
        const double length = flat ? bars[i].width : bars[i].height;
        const double base =
            flat ? (i == 2 ? bars[i].Right() : bars[i].left) : (i == 2 ? bars[i].top : bars[i].Bottom());
        const double share = std::abs((flat ? labels[i].Center().x : labels[i].Center().y) - base) / length;
        if (position == "outEnd") {
          EXPECT_GT(share, 1) << direction << i;
        }
        if (position == "outEnd") {
          EXPECT_FALSE(Overlap(bars[i], labels[i])) << direction << i;
        }
        if (position == "inEnd") {
          EXPECT_TRUE(share > 0.6 && share < 1) << direction << i << ' ' << share;
        }
        if (position == "ctr") {
          EXPECT_NEAR(share, 0.5, 0.01) << direction << i;
        }
        if (position == "inBase") {
          EXPECT_LT(share, 0.4) << direction << i;
        }
        const double across =
            flat ? labels[i].Center().y - bars[i].Center().y : labels[i].Center().x - bars[i].Center().x;
        EXPECT_NEAR(across, 0, 0.01);
      }
    }
  }
}

TEST_F(DataLabelsTest, AreBesideMarkers) {
  struct {
    S position;
    double x, y;
  } cases[] = {{"t", 0, -1}, {"b", 0, 1}, {"l", -1, 0}, {"r", 1, 0}, {"ctr", 0, 0}};
  for (const auto& test : cases) {
    const Drawing drawing = DrawLabels("lineChart", "<c:grouping val=\"standard\"/>",
                                       "<c:dLblPos val=\"" + test.position + "\"/>" + Shown("showVal"),
                                       {40, 50, 45}, "<c:marker val=\"1\"/>");
    const auto markers = BoxesOf(drawing, Role::kMarker), labels = BoxesOf(drawing, Role::kDataLabel);
    ASSERT_EQ(labels.size(), 3u) << test.position;
    const auto sign = [](double value) { return std::abs(value) < 0.01 ? 0 : value < 0 ? -1 : 1; };
    EXPECT_EQ(sign(labels[1].Center().x - markers[1].Center().x), test.x) << test.position;
    EXPECT_EQ(sign(labels[1].Center().y - markers[1].Center().y), test.y) << test.position;
    EXPECT_EQ(Overlap(labels[1], markers[1]), test.position == "ctr") << test.position;
  }
}

TEST_F(DataLabelsTest, OfPiesAreInsideOfTheirSliceOrOutsideOfTheCircle) {
  const auto draw = [&](const S& position, const std::vector<double>& values) {
    return DrawLabels("pieChart", "", "<c:dLblPos val=\"" + position + "\"/>" + Shown("showVal"), values);
  };
  const auto distances = [](const Drawing& drawing) {
    const Rect pie = BoxOf(drawing, Role::kSlice);
    std::vector<double> shares;
    for (const Rect& label : BoxesOf(drawing, Role::kDataLabel)) {
      shares.push_back(std::hypot(label.Center().x - pie.Center().x, label.Center().y - pie.Center().y) /
                       (pie.width / 2));
    }
    return shares;
  };
  for (const double share : distances(draw("outEnd", {20, 80}))) EXPECT_GT(share, 1);
  for (const double share : distances(draw("inEnd", {20, 80})))
    EXPECT_TRUE(share > 0.7 && share < 1) << share;
  for (const double share : distances(draw("ctr", {20, 80}))) EXPECT_NEAR(share, 0.5, 0.02);
  // A label that doesn't fit into its slice is outside, and the circle becomes smaller.
  const Drawing best = draw("bestFit", {1, 99});
  const auto fitted = distances(best);
  ASSERT_EQ(fitted.size(), 2u);
  EXPECT_GT(fitted[0], 1);
  EXPECT_LT(fitted[1], 1);
  EXPECT_LT(BoxOf(best, Role::kSlice).width, BoxOf(draw("ctr", {1, 99}), Role::kSlice).width);
}

/// The labels of a pie from top to bottom on each side of it, and the ones that overlap.
struct PieLabelsSeen {
  std::size_t count = 0, leaders = 0;
  Texts overlaps;
};

PieLabelsSeen LookAt(const Drawing& drawing) {
  PieLabelsSeen seen;
  const auto boxes = BoxesOf(drawing, Role::kDataLabel);
  const auto texts = TextsOf(drawing, Role::kDataLabel);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (Overlap(boxes[i], boxes[j], 0.02)) seen.overlaps.push_back(texts[j] + " on " + texts[i]);
    }
  }
  seen.count = boxes.size();
  seen.leaders = ItemsOf(drawing, Role::kLeaderLine).size();
  return seen;
}

TEST_F(DataLabelsTest, OfCrowdedPiesAreMovedApartAndTiedToTheirSlices) {
  const auto values = [](std::size_t large, std::size_t small) {
    std::vector<double> list(large, 100);
    list.insert(list.end(), small, 1);
    return list;
  };
  struct {
    const char *what, *element, *position;
    std::vector<double> values;
    std::size_t count, leaders;
    Texts notes;
  } cases[] = {
      {"few slices stay where they are", "pieChart", "outEnd", {10, 20, 30}, 3, 0, {}},
      {"small slices beside each other", "pieChart", "bestFit", values(3, 8), 11, 8, {}},
      {"the same in 3-D", "pie3DChart", "bestFit", values(3, 8), 11, 6, {}},
      {"all slices alike", "pieChart", "outEnd", values(0, 24), 24, 12, {}},
      {"more than have room",
       "pieChart",
       "outEnd",
       values(2, 90),
       21,
       19,
       {"The pie has no room for 71 of its data labels, which are left out."}},
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
    const PieLabelsSeen seen = LookAt(drawing);
    EXPECT_EQ(seen.overlaps, Texts()) << test.what;
    EXPECT_EQ(seen.count, test.count) << test.what;
    EXPECT_EQ(seen.leaders, test.leaders) << test.what;
    EXPECT_EQ(notes_, test.notes) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(DataLabelsTest, ADraggedLabelIsTiedToItsSlice) {
  const S dragged =
      "<c:dLbl><c:idx val=\"0\"/><c:layout><c:manualLayout><c:x val=\"0.2\"/><c:y "
      "val=\"0.1\"/></c:manualLayout>"
      "</c:layout></c:dLbl><c:dLblPos val=\"outEnd\"/>" +
      Shown("showVal");
  const Drawing with = DrawLabels("pieChart", "", dragged + Shown("showLeaderLines"));
  const Drawing without = DrawLabels("pieChart", "", dragged);
  const Drawing still =
      DrawLabels("pieChart", "", "<c:dLblPos val=\"outEnd\"/>" + Shown("showVal") + Shown("showLeaderLines"));
  ASSERT_EQ(ItemsOf(with, Role::kLeaderLine).size(), 1u);
  EXPECT_TRUE(ItemsOf(without, Role::kLeaderLine).empty());
  EXPECT_TRUE(ItemsOf(still, Role::kLeaderLine).empty());
  const Rect line = BoxOf(with, Role::kLeaderLine), label = BoxesOf(with, Role::kDataLabel)[0];
  EXPECT_NEAR(line.Right(), label.left, 4);
}

}  // namespace
}  // namespace plotsmith
