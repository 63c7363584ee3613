#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

const S kLines = "<c:showHorzBorder val=\"1\"/><c:showVertBorder val=\"1\"/><c:showOutline val=\"1\"/>";

class DataTableTest : public DrawingTest {
 protected:
  Drawing DrawWithTable(const S& table, const S& series, const S& category = "", bool horizontal = false,
                        double width = 384) {
    return Draw(PlotXml(ColumnsXml(series, "", "clustered", horizontal ? "bar" : "col") +
                        AxesXml(category, "", horizontal) + "<c:dTable>" + table + "</c:dTable>"),
                "", width, 270);
  }
};

TEST_F(DataTableTest, HasACellBelowEachValue) {
  const S series =
      SeriesXml(0, {1.5, 20}, "", "", CategoriesXml({"North", "South"})) + SeriesXml(1, {3, kNoValue});
  for (const bool reversed : {false, true}) {
    const S category = reversed ? "<c:scaling><c:orientation val=\"maxMin\"/></c:scaling>" : "";
    const Drawing drawing = DrawWithTable(kLines, series, category);
    EXPECT_EQ(notes_, render::Notes());
    EXPECT_EQ(DrawingComplaints(drawing), "");
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), (Texts{"North", "South"}));
    EXPECT_EQ(TextsOf(drawing, Role::kTableText), (Texts{"Series 0", "1.5", "20", "Series 1", "3"}));
    const Rect plot = BoxOf(drawing, Role::kPlotArea), table = BoxOf(drawing, Role::kTableLine);
    EXPECT_NEAR(table.top, plot.Bottom(), 1e-9);
    EXPECT_NEAR(table.Right(), plot.Right(), 1e-9);
    EXPECT_LT(table.left, plot.left);
    const auto texts = BoxesOf(drawing, Role::kTableText, 1), heads = BoxesOf(drawing, Role::kTickLabel, 1);
    const auto bars = BoxesOf(drawing, Role::kBar, 1);
    for (std::size_t i = 0; i < 2; ++i) {
      const double middle = plot.left + plot.width * (reversed ? 0.75 - 0.5 * static_cast<double>(i)
                                                               : 0.25 + 0.5 * static_cast<double>(i));
      EXPECT_NEAR(texts[i + 1].Center().x, middle, 1e-6);
      EXPECT_NEAR(heads[i].Center().x, middle, 1e-6);
      EXPECT_TRUE(bars[i].left < middle + plot.width / 4 && bars[i].Right() > middle - plot.width / 4);
    }
    // Rows follow each other from top to bottom.
    EXPECT_LT(heads[0].Center().y, texts[0].Center().y);
    EXPECT_LT(texts[0].Center().y, BoxesOf(drawing, Role::kTableText, 2)[0].Center().y);
    EXPECT_LE(table.Bottom(), 270);
  }
}

TEST_F(DataTableTest, HasTheLinesKeysAndFontOfItsElement) {
  const S look = LookXml("", SolidXml("0070C0")) +
                 "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr sz=\"800\" b=\"1\"/></a:pPr></a:p></c:txPr>";
  struct {
    S table;
    std::size_t moves;  // The lines of the table.
    std::size_t keys;
  } const kCases[] = {
      {kLines + "<c:showKeys val=\"1\"/>", 2 + 2 + 1, 2},
      {"<c:showHorzBorder val=\"1\"/>", 2, 0},
      {"<c:showVertBorder val=\"1\"/>", 2, 0},
      {"<c:showOutline val=\"1\"/>", 1, 0},
      {"<c:showKeys val=\"1\"/>", 0, 2},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawWithTable(test.table + look, SeriesXml(0, {1, 2}) + SeriesXml(1, {3, 4}));
    std::size_t moves = 0;
    for (const auto& item : ItemsOf(drawing, Role::kTableLine)) {
      const auto& path = std::get<PathItem>(item.content);
      EXPECT_EQ(HexOf(path.stroke.color), "#0070C0");
      EXPECT_EQ(path.stroke.width, 2);
      for (const PathStep& step : path.path.Steps()) moves += step.kind == PathStep::Kind::kMove;
    }
    EXPECT_EQ(moves, test.moves) << test.table;
    EXPECT_EQ(ItemsOf(drawing, Role::kLegendKey).size(), test.keys) << test.table;
    const auto text = std::get<TextItem>(ItemsOf(drawing, Role::kTableText)[0].content);
    EXPECT_EQ(text.font.size, 8);
    EXPECT_TRUE(text.font.bold);
  }
}

TEST_F(DataTableTest, SaysWhatHasNoRoom) {
  S many;
  for (int i = 0; i < 60; ++i) many += SeriesXml(i, {1, 2});
  S wide;
  for (int i = 0; i < 3; ++i) wide += SeriesXml(i, Numbers(10'000, 1));
  const auto without = [](const S& count) {
    return "The data table has no room for " + count + " of its series, which are left out.";
  };
  const S reason = "The data table isn't drawn because ", narrow = "its columns are too narrow for a text.";
  struct {
    const char* what;
    S series;
    bool horizontal;
    double width;
    std::size_t texts;
    S note;
  } const kCases[] = {
      {"rows", many, false, 384, 8 * 3, without("52")},
      {"columns", SeriesXml(0, Numbers(5000, 1)), false, 384, 0, reason + narrow},
      {"cells", wide, false, 200'000, 2 * 10'001, without("1")},
      {"lying bars", SeriesXml(0, {1}), true, 384, 0,
       reason + "the chart has no horizontal category axis or is in 3-D."},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawWithTable(kLines, test.series, "", test.horizontal, test.width);
    EXPECT_EQ(TextsOf(drawing, Role::kTableText).size(), test.texts) << test.what;
    EXPECT_EQ(notes_, render::Notes{test.note}) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(DataTableTest, LeavesTheChartAsItIsWhereItHasNoRoom) {
  // the columns are too narrow with the names beside them, or even without
  const S name = "A name that takes nearly a third of the width";
  for (const auto& [count, value] :
       {std::pair(55u, S()), {75u, S("<c:crossBetween val=\"midCat\"/>")}, {300u, S()}}) {
    S series = SeriesXml(0, Numbers(count, 1));
    series.replace(series.find("Series 0"), S("Series 0").size(), name);
    const S chart = LinesXml(series) + AxesXml("", value);
    const Drawing without = Draw(PlotXml(chart));
    const Drawing drawing = Draw(PlotXml(chart + "<c:dTable>" + kLines + "</c:dTable>"));
    EXPECT_EQ(notes_,
              (render::Notes{"The data table isn't drawn because its columns are too narrow for a text."}))
        << count;
    ASSERT_EQ(drawing.items.size(), without.items.size()) << count;
    for (std::size_t i = 0; i < drawing.items.size(); ++i) {
      EXPECT_EQ(drawing.items[i].tag, without.items[i].tag) << count << ' ' << i;
      EXPECT_EQ(BoundsOf(drawing.items[i]), BoundsOf(without.items[i])) << count << ' ' << i;
    }
  }
}

TEST_F(DataTableTest, IsBelowItsAxisInAnyOrderOfTheAxes) {
  const S axes = AxesXml(), category = axes.substr(0, axes.find("<c:valAx>"));
  const S series = SeriesXml(0, {1.5, 20}, "", "", CategoriesXml({"North", "South"}));
  const Drawing drawing = Draw(PlotXml(ColumnsXml(series) + axes.substr(category.size()) + category +
                                       "<c:dTable>" + kLines + "</c:dTable>"));
  EXPECT_EQ(notes_, render::Notes());
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"North", "South"}));
  EXPECT_EQ(TextsOf(drawing, Role::kTableText), (Texts{"Series 0", "1.5", "20"}));
}

TEST_F(DataTableTest, LongTextsEndInDots) {
  const S name(20'000, 'x');
  const Drawing drawing =
      DrawWithTable(kLines, SeriesXml(0, {1, 1e300}, "", "", CategoriesXml({name, S(20'000, ' ') + name})));
  EXPECT_EQ(DrawingComplaints(drawing), "");
  for (const S& text : TextsOf(drawing, Role::kTickLabel, 1))
    EXPECT_TRUE(text.ends_with("...")) << text.size();
}

}  // namespace
}  // namespace plotsmith
