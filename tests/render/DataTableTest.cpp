#include <chrono>

#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Role;
using S = std::string;
using Texts = std::vector<S>;

const S kLines = "<c:showHorzBorder val=\"1\"/><c:showVertBorder val=\"1\"/><c:showOutline val=\"1\"/>";

class DataTableTest : public DrawingTest {
 protected:
  Drawing DrawWithTable(const S& table, const S& series, const S& category = "", bool horizontal = false) {
    return Draw(
        PlotXml(GroupXml("barChart", S("<c:barDir val=\"") + (horizontal ? "bar" : "col") + "\"/>", series) +
                AxesXml(category, "", horizontal) + "<c:dTable>" + table + "</c:dTable>"));
  }
};

TEST_F(DataTableTest, SaysWhatHasNoRoom) {
  S many;
  for (int i = 0; i < 60; ++i) many += SeriesXml(i, {1, 2});
  struct {
    const char* what;
    S series;
    bool horizontal;
    std::size_t texts;
    render::Notes notes;
  } const kCases[] = {
      {"rows", many, false, 8 * 3, {"The data table has no room for 52 of its series, which are left out."}},
      {"columns",
       SeriesXml(0, std::vector<double>(5000, 1)),
       false,
       0,
       {"The data table isn't drawn, as its columns have no room for a text."}},
      {"lying bars",
       SeriesXml(0, {1}),
       true,
       0,
       {"The data table isn't drawn, as its chart has no flat axis of categories."}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawWithTable(kLines, test.series, "", test.horizontal);
    EXPECT_EQ(TextsOf(drawing, Role::kTableText).size(), test.texts) << test.what;
    EXPECT_EQ(notes_, test.notes) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(DataTableTest, LeavesTheTickLabelsWhereItHasNoRoom) {
  // the columns are too narrow with the names beside them, or even without
  const S name = "A name that takes nearly a third of the width";
  for (const std::size_t count : {75u, 300u}) {
    S series = SeriesXml(0, std::vector<double>(count, 1));
    series.replace(series.find("Series 0"), S("Series 0").size(), name);
    const Drawing drawing = DrawWithTable(kLines, series);
    EXPECT_FALSE(TextsOf(drawing, Role::kTickLabel, 1).empty()) << count;
    EXPECT_TRUE(TextsOf(drawing, Role::kTableText).empty()) << count;
    EXPECT_EQ(DrawingComplaints(drawing), "") << count;
    EXPECT_EQ(notes_, (render::Notes{"The data table isn't drawn, as its columns have no room for a text."}))
        << count;
  }
}

TEST_F(DataTableTest, LongTextsEndInDots) {
  const auto start = std::chrono::steady_clock::now();
  const S name(20'000, 'x');
  const Drawing drawing =
      DrawWithTable(kLines, SeriesXml(0, {1, 1e300}, "", "", CategoriesXml({name, S(20'000, ' ') + name})));
  EXPECT_EQ(DrawingComplaints(drawing), "");
  for (const S& text : TextsOf(drawing, Role::kTickLabel, 1))
    EXPECT_TRUE(text.ends_with("...")) << text.size();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace plotsmith
