#include <numbers>

#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

/// A slice, or a rectangle of a bar. Its angles are in degrees clockwise from twelve o'clock.
struct Slice {
  int number = 0;
  Point center;
  double radius = 0, from = 0, sweep = 0;
  Rect box;
};

double AngleAt(Point center, Point p) {
  const double degrees = std::atan2(p.x - center.x, center.y - p.y) * 180 / std::numbers::pi;
  return degrees < 0 ? degrees + 360 : degrees;
}

std::vector<Slice> SlicesOf(const Drawing& drawing) {
  std::vector<Slice> slices;
  for (const Item& item : ItemsOf(drawing, Role::kSlice)) {
    const auto& steps = std::get<PathItem>(item.content).path.Steps();
    Slice slice{item.tag.point, steps[0].to, 0, 0, 0, BoundsOf(item)};
    const Point begin = steps[1].to, end = steps[steps.size() - 2].to;
    slice.radius = std::hypot(begin.x - slice.center.x, begin.y - slice.center.y);
    slice.from = AngleAt(slice.center, begin);
    slice.sweep = std::fmod(AngleAt(slice.center, end) - slice.from + 360, 360);
    slices.push_back(slice);
  }
  return slices;
}

class OfPiesTest : public DrawingTest {
 protected:
  /// Draws a pie of pie or a bar of pie. `series` and `settings` are elements of the series and of the group.
  Drawing DrawOfPie(const S& type, const Numbers& values, const S& settings, const S& series = "",
                    const S& behind = "", const Texts& names = {}) {
    return Draw(PlotXml("<c:ofPieChart><c:ofPieType val=\"" + type + "\"/><c:varyColors val=\"1\"/>" +
                            SeriesXml(0, values, series, "", names.empty() ? "" : CategoriesXml(names)) +
                            settings + "</c:ofPieChart>",
                        behind));
  }
};

S Split(const S& type, const S& position = "") {
  return "<c:splitType val=\"" + type + "\"/>" +
         (position.empty() ? "" : "<c:splitPos val=\"" + position + "\"/>");
}

S Custom(const std::vector<S>& points) {
  S xml = Split("cust") + "<c:custSplit>";
  for (const S& point : points) xml += "<c:secondPiePt val=\"" + point + "\"/>";
  return xml + "</c:custSplit>";
}

TEST_F(OfPiesTest, SplitThePointsAsTheFileSays) {
  const Numbers seven = {40, 22, 14, 9, 6, 5, 4};
  const struct {
    S settings;
    Numbers values;
    std::vector<int> second;  // the numbers of the points in the second plot
  } cases[] = {
      {"", seven, {5, 6, 7}},
      {Split("auto", "1"), seven, {5, 6, 7}},
      {Split("auto"), {1, 2, 3, 4, 5, 6}, {5, 6}},
      {Split("auto"), {1, 2, 3, 4}, {3, 4}},
      {Split("auto"), {1, 2}, {2}},
      {Split("pos"), seven, {5, 6, 7}},
      {Split("pos", "2"), seven, {6, 7}},
      {Split("pos", "5"), seven, {3, 4, 5, 6, 7}},
      {Split("val", "9"), seven, {5, 6, 7}},
      {Split("val", "9.5"), seven, {4, 5, 6, 7}},
      {Split("val", "10"), {20, -5, 30, -40}, {2}},
      {Split("percent", "20"), {10, 90, 30, 70}, {1, 3}},
      {Custom({"0", "3", "99", "-1", "x"}), seven, {1, 4}},
      {Custom({"6", "1"}), seven, {2, 7}},
      {Split("pos", "2"), {10, 20, kNoValue, 5}, {4}},
  };
  for (const auto& test : cases) {
    const Drawing drawing = DrawOfPie("pie", test.values, test.settings);
    const auto slices = SlicesOf(drawing);
    double whole = 0, other = 0;
    for (const double value : test.values) whole += std::isnan(value) ? 0 : std::abs(value);
    for (const int number : test.second) other += std::abs(test.values[static_cast<std::size_t>(number - 1)]);
    std::vector<int> second;
    for (const Slice& slice : slices) {
      const bool isOther = slice.number == static_cast<int>(test.values.size() + 1);
      const double value =
          isOther ? other : std::abs(test.values[static_cast<std::size_t>(slice.number - 1)]);
      const bool isSecond = slice.center.x > slices[0].center.x + 1;
      if (isSecond) second.push_back(slice.number);
      const double share = value / (isSecond ? other : whole);
      if (share == 1) continue;  // A circle has no angles.
      EXPECT_NEAR(slice.sweep, 360 * share, 1e-6) << test.settings << slice.number;
      if (isOther) {
        EXPECT_NEAR(slice.from, std::fmod(450 - slice.sweep / 2, 360), 1e-6) << test.settings;
      }
    }
    EXPECT_EQ(second, test.second) << test.settings;
    EXPECT_EQ(notes_, render::Notes()) << test.settings;
  }
}

TEST_F(OfPiesTest, WithoutPointsInTheSecondPlotArePies) {
  const Numbers values = {5, 6, 7};
  const auto boxes = [](const Drawing& drawing) { return BoxesOf(drawing, Role::kSlice); };
  const auto pie = boxes(Draw(PlotXml("<c:pieChart>" + SeriesXml(0, values) + "</c:pieChart>")));
  for (const S& settings : {Split("val", "5"), Split("percent", "1"), Split("pos", "0"), Custom({})}) {
    EXPECT_EQ(boxes(DrawOfPie("pie", values, settings)), pie) << settings;
    EXPECT_EQ(boxes(DrawOfPie("bar", values, settings)), pie) << settings;
  }
  EXPECT_EQ(boxes(DrawOfPie("pie", {7}, "")).size(), 1u);
  EXPECT_EQ(boxes(DrawOfPie("pie", {0, 0, 0}, "")).size(), 0u);
}

TEST_F(OfPiesTest, HaveTheSizesAndTheGapOfTheFile) {
  const struct {
    const char* what;
    S settings, series;
    double size, gap, explosion;  // shares of the radius of the first plot and of the mean radius; radii
  } cases[] = {
      {"default", "", "", 0.75, 1.5, 0},
      {"wide", "<c:gapWidth val=\"300\"/><c:secondPieSize val=\"50\"/>", "", 0.5, 3, 0},
      {"no gap", "<c:gapWidth val=\"0\"/><c:secondPieSize val=\"200\"/>", "", 2, 0, 0},
      {"percent signs", "<c:gapWidth val=\"80%\"/><c:secondPieSize val=\"120%\"/>", "", 1.2, 0.8, 0},
      {"limits", "<c:gapWidth val=\"9999\"/><c:secondPieSize val=\"1\"/>", "", 0.05, 5, 0},
      {"exploded", "<c:gapWidth val=\"100\"/>", "<c:explosion val=\"20\"/>", 0.75, 1, 0.2},
  };
  for (const auto& test : cases) {
    for (const bool isBar : {false, true}) {
      const Drawing drawing =
          DrawOfPie(isBar ? "bar" : "pie", {3, 2, 2, 1, 1}, Split("pos", "2") + test.settings, test.series);
      const auto slices = SlicesOf(drawing);
      ASSERT_EQ(slices.size(), 6u) << test.what;
      const Rect area = BoxOf(drawing, Role::kPlotArea);
      const double radius = slices[0].radius, height = 2 * radius * test.size;
      const double width = isBar ? height / 2 : height * (1 + test.explosion);
      const double gap = test.gap * radius * (1 + test.size) / 2, first = 2 * radius * (1 + test.explosion);
      // Both plots are as large as the plot area allows, and in its middle.
      const double all = first + gap + width;
      const double high = std::max(first, isBar ? height : height * (1 + test.explosion));
      EXPECT_NEAR(std::max(all / area.width, high / area.height), 1, 1e-9) << test.what;
      const double left = area.Center().x - all / 2;
      const auto before = [&](const Slice& slice) {  // where the tip of the slice would be without explosion
        const double middle = (slice.from + slice.sweep / 2) * std::numbers::pi / 180;
        const double away = test.explosion * slice.radius;
        return Point{slice.center.x - away * std::sin(middle), slice.center.y + away * std::cos(middle)};
      };
      for (int i = 0; i < 4; ++i) {
        const Point center = before(slices[static_cast<std::size_t>(i)]);
        EXPECT_NEAR(center.x, left + first / 2, 1e-6) << test.what;
        EXPECT_NEAR(center.y, area.Center().y, 1e-6) << test.what;
      }
      const Slice &upper = slices[4], &lower = slices[5];
      if (isBar) {
        const double from = left + first + gap, top = area.Center().y - height / 2;
        EXPECT_NEAR(upper.box.left, from, 1e-6) << test.what;
        EXPECT_NEAR(upper.box.top, top, 1e-6) << test.what;
        EXPECT_NEAR(upper.box.width, width, 1e-6) << test.what;
        EXPECT_NEAR(upper.box.height, height / 2, 1e-6) << test.what;
        EXPECT_NEAR(lower.box.top, upper.box.Bottom(), 1e-6) << test.what;
        EXPECT_NEAR(lower.box.Bottom(), top + height, 1e-6) << test.what;
      } else {
        EXPECT_NEAR(upper.radius, height / 2, 1e-6) << test.what;
        EXPECT_NEAR(before(upper).x, left + first + gap + width / 2, 1e-6) << test.what;
        EXPECT_NEAR(before(lower).x, left + first + gap + width / 2, 1e-6) << test.what;
        EXPECT_NEAR(before(lower).y, area.Center().y, 1e-6) << test.what;
        EXPECT_NEAR(upper.from, 0, 1e-6) << test.what;
      }
    }
  }
}

TEST_F(OfPiesTest, SeriesLinesGoFromTheOtherPointToTheSecondPlot) {
  const S lines = "<c:serLines>" + LookXml("", SolidXml("FF0000")) + "</c:serLines>";
  EXPECT_EQ(ItemsOf(DrawOfPie("pie", {3, 2, 1}, ""), Role::kSeriesLine).size(), 0u);
  for (const bool isBar : {false, true}) {
    const Drawing drawing = DrawOfPie(isBar ? "bar" : "pie", {3, 2, 2, 1}, Split("pos", "2") + lines);
    const auto items = ItemsOf(drawing, Role::kSeriesLine);
    const auto slices = SlicesOf(drawing);
    ASSERT_EQ(items.size(), 2u);
    ASSERT_EQ(slices.size(), 5u);
    const Slice &other = slices[2], &piece = slices[3];
    EXPECT_EQ(other.number, 5);
    for (const bool isLower : {false, true}) {
      const auto& line = std::get<PathItem>(items[isLower ? 1 : 0].content);
      EXPECT_EQ(HexOf(line.stroke.color), "#FF0000");
      EXPECT_EQ(line.stroke.width, 2);
      const Point from = line.path.Steps()[0].to, to = line.path.Steps()[1].to;
      const double angle = (other.from + (isLower ? other.sweep : 0)) * std::numbers::pi / 180;
      EXPECT_NEAR(from.x, other.center.x + other.radius * std::sin(angle), 1e-6);
      EXPECT_NEAR(from.y, other.center.y - other.radius * std::cos(angle), 1e-6);
      const double height = isBar ? slices[4].box.Bottom() - piece.box.top : 2 * piece.radius;
      EXPECT_NEAR(to.x, isBar ? piece.box.left : piece.center.x, 1e-6);
      EXPECT_NEAR(to.y, other.center.y + (isLower ? 1 : -1) * height / 2, 1e-6);
    }
  }
}

TEST_F(OfPiesTest, TheOtherPointHasItsLabelAndLookButNoLegendEntry) {
  const Texts names = {"North", "South", "East", "West"};
  const S labels =
      "<c:dLbls><c:dLbl><c:idx val=\"4\"/><c:dLblPos val=\"ctr\"/><c:showVal val=\"1\"/>"
      "<c:showCatName val=\"1\"/></c:dLbl><c:dLblPos val=\"ctr\"/><c:showCatName val=\"1\"/>"
      "<c:showPercent val=\"1\"/></c:dLbls>";
  const S look = "<c:dPt><c:idx val=\"4\"/>" + LookXml(SolidXml("123456")) + "</c:dPt>";
  for (const S& type : {S("pie"), S("bar")}) {
    const Drawing drawing =
        DrawOfPie(type, {50, 20, 20, 10}, Split("pos", "2"), look + labels, "<c:legend/>", names);
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel),
              (Texts{"North, 50%", "South, 20%", "Other, 30, 30%", "East, 20%", "West, 10%"}));
    EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry), names);
    const auto slices = ItemsOf(drawing, Role::kSlice);
    ASSERT_EQ(slices.size(), 5u);
    EXPECT_EQ(FillOf(slices[2]), "#123456");
    EXPECT_EQ(drawing.title, type == "bar" ? "Bar of pie chart" : "Pie of pie chart");
    EXPECT_EQ(drawing.description, drawing.title + ".\nSeries 0: North 50, South 20, East 20, West 10");
    EXPECT_EQ(DrawingComplaints(drawing), "");
  }
  // without a look of its own, it has the colour of the next point
  const Drawing plain = DrawOfPie("pie", {50, 20, 20, 10}, Split("pos", "2"));
  EXPECT_EQ(FillOf(ItemsOf(plain, Role::kSlice)[2]), "#4BACC6");
}

TEST_F(OfPiesTest, LabelsOutsideAreOnTheChartAndDoNotTouch) {
  Numbers many = {60, 50};
  for (int i = 0; i < 12; ++i) many.push_back(i % 3 + 1);
  const struct {
    const char* what;
    Numbers values;
    S last;  // the number of points in the second plot
  } cases[] = {
      {"small slices", many, "12"},
      // The label of the last slice of the second plot begins where the one of the point "Other" is.
      {"labels in the gap", {40, 20, 5, 5, 10}, "3"},
  };
  for (const auto& test : cases) {
    Texts names;
    for (std::size_t i = 0; i < test.values.size(); ++i) names.push_back("Islands " + std::to_string(i));
    for (const S& type : {S("pie"), S("bar")}) {
      for (const S& position : {S("outEnd"), S("bestFit")}) {
        const Drawing drawing =
            DrawOfPie(type, test.values, Split("pos", test.last) + "<c:gapWidth val=\"0\"/>",
                      "<c:dLbls><c:dLblPos val=\"" + position +
                          "\"/><c:showCatName val=\"1\"/><c:showLeaderLines val=\"1\"/>"
                          "</c:dLbls>",
                      "", names);
        const S what = test.what + type + position;
        EXPECT_EQ(TextsOf(drawing, Role::kDataLabel).size(), names.size() + 1) << what;
        EXPECT_EQ(OverlapComplaints(drawing, Role::kDataLabel, 0.1), "") << what;
        EXPECT_EQ(DrawingComplaints(drawing), "") << what;
        EXPECT_EQ(notes_, render::Notes()) << what;
      }
    }
  }
}

}  // namespace
}  // namespace plotsmith
