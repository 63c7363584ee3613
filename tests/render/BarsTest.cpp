#include <map>

#include "tests/render/DrawingTest.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;

/// The bars for the values of three categories.
struct BarCase {
  const char *name, *direction, *grouping;
  S valueAxis;
};

class BarsTest : public DrawingTest, public ::testing::WithParamInterface<BarCase> {
 protected:
  Drawing DrawCase(const std::vector<Numbers>& values) {
    const BarCase& test = GetParam();
    S series;
    for (std::size_t s = 0; s < values.size(); ++s) series += SeriesXml(static_cast<int>(s), values[s]);
    const bool stacked = S(test.grouping) != "clustered";
    const S first =
        S("<c:barDir val=\"") + test.direction + "\"/><c:grouping val=\"" + test.grouping + "\"/>";
    return Draw(PlotXml(
        GroupXml("barChart", first, series,
                 stacked ? "<c:gapWidth val=\"50\"/><c:overlap val=\"100\"/>" : "<c:gapWidth val=\"50\"/>") +
        AxesXml("", test.valueAxis, Horizontal())));
  }
  bool Horizontal() const { return S(GetParam().direction) == "bar"; }
  double Length(const Rect& box) const { return Horizontal() ? box.width : box.height; }
  double Thickness(const Rect& box) const { return Horizontal() ? box.height : box.width; }
};

TEST_P(BarsTest, AreAsLongAsTheirValues) {
  const std::vector<Numbers> values = {{10, 25, 0.5}, {30, 5, 12}};
  const Drawing drawing = DrawCase(values);
  EXPECT_EQ(DrawingComplaints(drawing), "");
  const bool percent = S(GetParam().grouping) == "percentStacked";
  std::optional<double> pointsPerUnit;
  for (int s = 0; s < 2; ++s) {
    const auto boxes = BoxesOf(drawing, Role::kBar, s + 1);
    ASSERT_EQ(boxes.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
      const double value =
          values[static_cast<std::size_t>(s)][i] / (percent ? values[0][i] + values[1][i] : 1);
      const double scale = Length(boxes[i]) / value;
      EXPECT_NEAR(scale / pointsPerUnit.value_or(scale), 1, 1e-9) << s << ' ' << i;
      pointsPerUnit = scale;
      EXPECT_NEAR(Thickness(boxes[i]), Thickness(boxes[0]), 1e-9);
    }
  }
  // The gap is half a bar's width, so a category is two and a half bars wide, or one and a half.
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  const double slots = S(GetParam().grouping) == "clustered" ? 2.5 : 1.5;
  EXPECT_NEAR(Thickness(BoxesOf(drawing, Role::kBar)[0]) * slots * 3, Thickness(plot), 1e-6);
}

TEST_P(BarsTest, StackedBarsTouchAndOthersAreSideBySide) {
  const Drawing drawing = DrawCase({{10, 25, 3}, {30, 5, 12}, {5, 5, 5}});
  for (std::size_t i = 0; i < 3; ++i) {
    for (int s = 1; s < 3; ++s) {
      const Rect a = BoxesOf(drawing, Role::kBar, s)[i], b = BoxesOf(drawing, Role::kBar, s + 1)[i];
      EXPECT_FALSE(Overlap(a, b, 1e-6));
      const Rect both = Union(a, b);
      EXPECT_NEAR(both.width * both.height,
                  S(GetParam().grouping) == "clustered" ? both.width * both.height
                                                        : a.width * a.height + b.width * b.height,
                  1e-6);
      const double step = Horizontal() ? a.top - b.top : b.left - a.left;
      EXPECT_NEAR(step, S(GetParam().grouping) == "clustered" ? Thickness(a) : 0, 1e-6);
    }
  }
}

TEST_P(BarsTest, NegativeBarsExtendInTheOtherDirection) {
  const Drawing drawing = DrawCase({{10, -20, kNoValue}, {-5, -10, 15}});
  EXPECT_EQ(DrawingComplaints(drawing), "");
  const auto first = BoxesOf(drawing, Role::kBar, 1), second = BoxesOf(drawing, Role::kBar, 2);
  ASSERT_EQ(first.size(), 2u);
  ASSERT_EQ(second.size(), 3u);
  const auto base = [&](const Rect& box, bool negative) {
    const bool reversed = GetParam().valueAxis.find("maxMin") != S::npos;
    if (Horizontal()) return negative != reversed ? box.Right() : box.left;
    return negative != reversed ? box.top : box.Bottom();
  };
  EXPECT_NEAR(base(first[0], false), base(first[1], true), 1e-6);
  EXPECT_NEAR(base(first[0], false), base(second[0], true), 1e-6);
  EXPECT_NEAR(base(first[0], false), base(second[2], false), 1e-6);
}

TEST_F(DrawingTest, BarsOverlapOrHaveGapsByAShareOfTheirWidth) {
  for (const double overlap : {-100, -50, 0, 40, 100}) {
    const Drawing drawing = Draw(PlotXml(
        ColumnsXml(SeriesXml(0, {4, 2}) + SeriesXml(1, {1, 3}),
                   "<c:gapWidth val=\"100\"/><c:overlap val=\"" + xlsx::xml::Number(overlap) + "\"/>") +
        AxesXml()));
    const Rect first = BoxesOf(drawing, Role::kBar, 1)[0], second = BoxesOf(drawing, Role::kBar, 2)[0];
    EXPECT_NEAR((first.Right() - second.left) / first.width, overlap / 100, 1e-6) << overlap;
    const double category = BoxOf(drawing, Role::kPlotArea).width / 2;
    EXPECT_NEAR(category, Union(first, second).width + first.width, 1e-6) << overlap;
  }
}

TEST_F(DrawingTest, BarsBelowZeroAreInvertedIfTheFileSaysSo) {
  const S red = LookXml(SolidXml("FF0000")), green = LookXml(SolidXml("00FF00"));
  const S invert = "<c:invertIfNegative val=\"1\"/>", keep = "<c:invertIfNegative val=\"0\"/>";
  const S yellow =
      "<c:extLst><c:ext uri=\"{6F2FDCE9-48DA-4B69-8628-5D25D57E5C99}\" "
      "xmlns:c14=\"http://schemas.microsoft.com/office/drawing/2007/8/2/chart\"><c14:invertSolidFillFmt>"
      "<c14:spPr>" +
      SolidXml("FFFF00") + "</c14:spPr></c14:invertSolidFillFmt></c:ext></c:extLst>";
  const auto point = [](int index, const S& more) {
    return "<c:dPt><c:idx val=\"" + std::to_string(index) + "\"/>" + more + "</c:dPt>";
  };
  struct {
    const char* what;
    S series;
    Texts fills;  // The fills for the values 4, -3 and -1.
    S behind = "", group = "";
  } cases[] = {
      {"as it is", red + keep, {"#FF0000", "#FF0000", "#FF0000"}},
      {"white", red + invert, {"#FF0000", "#FFFFFF", "#FFFFFF"}},
      {"a colour", red + invert, {"#FF0000", "#FFFF00", "#FFFF00"}, yellow},
      {"a colour that isn't asked for", red + keep, {"#FF0000", "#FF0000", "#FF0000"}, yellow},
      {"a colour of a point", red + invert + point(1, green), {"#FF0000", "#00FF00", "#FFFFFF"}},
      {"a point that isn't inverted", red + invert + point(2, keep), {"#FF0000", "#FFFFFF", "#FF0000"}},
      {"varied colours", invert, {"#4F81BD", "#FFFFFF", "#FFFFFF"}, "", "<c:varyColors val=\"1\"/>"},
  };
  for (const auto& test : cases) {
    for (const S kind : {"barChart", "bar3DChart"}) {
      const Drawing drawing =
          Draw(PlotXml(GroupXml(kind, "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>" + test.group,
                                SeriesXml(0, {4, -3, -1}, test.series, test.behind)) +
                       AxesXml()));
      std::map<int, S> fills;  // By point. The front face of a 3-D bar is painted last.
      for (const auto& item : ItemsOf(drawing, Role::kBar)) fills[item.tag.point] = FillOf(item);
      Texts found;
      for (const auto& [number, fill] : fills) found.push_back(fill);
      EXPECT_EQ(found, test.fills) << test.what << " of a " << kind;
    }
  }
}

TEST_F(DrawingTest, PatternsAreInvertedByTheirColors) {
  const S pattern =
      "<c:spPr><a:pattFill prst=\"pct50\"><a:fgClr><a:srgbClr val=\"FF0000\"/></a:fgClr><a:bgClr><a:srgbClr "
      "val=\"00FF00\"/></a:bgClr></a:pattFill></c:spPr><c:invertIfNegative val=\"1\"/>";
  const Drawing drawing = Draw(PlotXml(GroupXml("barChart", "", SeriesXml(0, {4, -3}, pattern)) + AxesXml()));
  Texts foregrounds;
  for (const auto& item : ItemsOf(drawing, Role::kBar)) {
    const auto& fill = std::get<PathItem>(item.content).fill;
    foregrounds.push_back(HexOf(std::get<render::PatternFill>(fill).foreground));
  }
  EXPECT_EQ(foregrounds, (Texts{"#FF0000", "#00FF00"}));
}

INSTANTIATE_TEST_SUITE_P(Kinds, BarsTest,
                         ::testing::Values(BarCase{"Columns", "col", "clustered", ""},
                                           BarCase{"StackedColumns", "col", "stacked", ""},
                                           BarCase{"PercentColumns", "col", "percentStacked", ""},
                                           BarCase{"Bars", "bar", "clustered", ""},
                                           BarCase{"StackedBars", "bar", "stacked", ""},
                                           BarCase{"PercentBars", "bar", "percentStacked", ""},
                                           BarCase{"HangingColumns", "col", "clustered",
                                                   "<c:scaling><c:orientation val=\"maxMin\"/></c:scaling>"}),
                         [](const auto& each) { return S(each.param.name); });

using SeriesLinesTest = DrawingTest;

TEST_F(SeriesLinesTest, JoinTheEndsOfStackedBars) {
  for (const char* direction : {"col", "bar"}) {
    for (const char* grouping : {"clustered", "stacked", "percentStacked"}) {
      for (const bool reversed : {false, true}) {
        SCOPED_TRACE(S(direction) + " " + grouping + (reversed ? " reversed" : ""));
        const bool isUpright = direction == S("col");
        const S category = reversed ? "<c:scaling><c:orientation val=\"maxMin\"/></c:scaling>" : "";
        const Drawing drawing =
            Draw(PlotXml(ColumnsXml(SeriesXml(0, {1, 2, 3, kNoValue}) + SeriesXml(1, {1, -2, 1, 4}),
                                    "<c:overlap val=\"100\"/><c:serLines/>", grouping, direction) +
                         AxesXml(category, "", !isUpright)));
        EXPECT_EQ(notes_, render::Notes());
        std::map<std::pair<int, int>, Rect> bars;
        for (const Item& item : ItemsOf(drawing, Role::kBar))
          bars[{item.tag.series, item.tag.point}] = render::BoundsOf(item);
        // The end of a value below zero is at the other edge of its bar.
        const auto endOf = [&](int series, int point) {
          const Rect& bar = bars[{series, point}];
          const bool isBelow = series == 2 && point == 2;
          return isUpright ? (isBelow ? bar.Bottom() : bar.top) : (isBelow ? bar.left : bar.Right());
        };
        // The categories of horizontal bars go upwards, and those of columns to the right.
        const auto edgeOf = [&](int series, int point, bool isUpper) {
          const Rect& bar = bars[{series, point}];
          return isUpright ? (isUpper ? bar.Right() : bar.left) : (isUpper ? bar.Bottom() : bar.top);
        };
        std::vector<std::pair<int, int>> numbers;
        for (const Item& line : ItemsOf(drawing, Role::kSeriesLine)) {
          const int series = line.tag.series, point = line.tag.point;
          numbers.emplace_back(series, point);
          const auto& steps = std::get<PathItem>(line.content).path.Steps();
          const bool isUpper = isUpright != reversed;
          const Point from{edgeOf(series, point - 1, isUpper), endOf(series, point - 1)},
              to{edgeOf(series, point, !isUpper), endOf(series, point)};
          EXPECT_NEAR(isUpright ? steps[0].to.x : steps[0].to.y, from.x, 1e-6);
          EXPECT_NEAR(isUpright ? steps[0].to.y : steps[0].to.x, from.y, 1e-6);
          EXPECT_NEAR(isUpright ? steps[1].to.x : steps[1].to.y, to.x, 1e-6);
          EXPECT_NEAR(isUpright ? steps[1].to.y : steps[1].to.x, to.y, 1e-6);
        }
        using Numbered = std::vector<std::pair<int, int>>;
        EXPECT_EQ(numbers, grouping == S("clustered") ? Numbered{}
                                                      : (Numbered{{1, 2}, {1, 3}, {2, 2}, {2, 3}, {2, 4}}));
      }
    }
  }
}

TEST_F(SeriesLinesTest, OfThinBarsAreReported) {
  const S bars =
      ColumnsXml(SeriesXml(0, Numbers(2000, 1)), "<c:overlap val=\"100\"/><c:serLines/>", "stacked");
  EXPECT_EQ(ItemsOf(Draw(PlotXml(bars + AxesXml())), Role::kSeriesLine).size(), 0u);
  EXPECT_EQ(notes_, render::Notes{"Series lines between bars that are thinner than a pixel aren't drawn."});
}

}  // namespace
}  // namespace plotsmith
