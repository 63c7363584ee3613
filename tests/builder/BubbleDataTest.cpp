#include "builder/sheet/DataSheetFinishing.h"
#include "builder/state/BuilderVariables.h"
#include "tests/support/BlockTest.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

const S kBubbleHeader = "|[-BubbleColor-]|[-XAxisValue-]|[-YAxisValue-]|[-BubbleSize-]\n";

class BubbleDataTest : public test::BlockTest {
 protected:
  /// Returns the sizes in the block.
  S Sizes() { return Cells("VEX_ChartData", 2, 6, mCategoryCount + 1, 6); }
};

TEST_F(BubbleDataTest, OneBubbleForEachName) {
  struct Case {
    const char* what;
    S categories, series, values, rest, block;
  };
  const Definition full = BubbleDefinition();
  const S x = "<x-values><column name=\"Across\"/></x-values>",
          sizes = "<bubble-sizes><column name=\"Size\"/></bubble-sizes>";
  const Case cases[] = {
      {"everything", full.categories, full.series, full.values, full.rest, "Ada|blue|6|8|40\nBo|blue|3|4|20"},
      {"without colours", full.categories, "<series headings-in=\"none\"><column name=\"Group\"/></series>",
       full.values, full.rest, "Ada|[none]|6|8|40\nBo|[none]|3|4|20"},
      {"without series", full.categories, "", full.values, full.rest, "Ada|[none]|6|8|40\nBo|[none]|3|4|20"},
      {"every value except none means a colour column", full.categories,
       Columns("series", {"Group"}, "columns"), full.values, full.rest, "Ada|blue|6|8|40\nBo|blue|3|4|20"},
      {"categories are always found in rows", Columns("categories", {"Name", "Group"}, "columns"),
       full.series, full.values, full.rest, "Ada|blue|6|8|40\nBo|blue|3|4|20"},
      {"without sizes all are 1, for any number of rows", full.categories, full.series, full.values, x,
       "Ada|blue|6|8|1\nBo|blue|3|4|1"},
      {"without X and Y", full.categories, full.series, "", sizes, "Ada|blue|0|0|40\nBo|blue|0|0|20"},
  };
  Open(BubbleBook({{"Ada", "Red", 1, 2, 10}, {"Bo", "blue", 3, 4, 20}, {"ada", "BLUE", 5, 6, 30}}, full));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Block({"VEX_Chart1", "bubble", full.attributes, c.categories, c.series, c.values, c.rest}),
              kBubbleHeader + c.block);
    EXPECT_EQ(mSeriesCount, 4);
    EXPECT_EQ(mMapInstructions.size(), 4u);
  }
  EXPECT_TRUE(Messages().empty());

  EXPECT_EQ(Block({"VEX_Chart1", "bubble", full.attributes, "", full.series, full.values, full.rest}),
            "(no map)");
  EXPECT_EQ(Block({"VEX_Chart1", "bubble", full.attributes, full.categories, full.series, "<values/>"}),
            "(no map)");
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_EQ(
      Messages()[0],
      "Brindle Plotsmith: PSChartBuilder.BuildBubbleMap\nFailed to populate a data definition collection");
  EXPECT_EQ(
      Messages()[1],
      "Brindle Plotsmith: PSChartBuilder.BuildBubbleMap\nObject variable or With block variable not set");
}

TEST_F(BubbleDataTest, The254thNameIsChartedAndCausesTheMessage) {
  struct Case {
    int names;
    S last;
    int bubbles;
    std::size_t messages;
  };
  for (const Case& c : {Case{253, "", 253, 0}, Case{253, "n1", 253, 0}, Case{254, "", 254, 1},
                        Case{254, "n1", 254, 1}, Case{255, "", 254, 1}}) {
    SCOPED_TRACE(std::to_string(c.names) + c.last);
    test::PlainBook book = BubbleBook({}, BubbleDefinition());
    auto& rows = book.Sheet("Data1").rows;
    for (int i = 1; i <= c.names; ++i) rows.push_back({"N" + std::to_string(i), S("G"), 1.0, 2.0, 3.0});
    if (!c.last.empty()) rows.push_back({c.last, S("G"), 1.0, 2.0, 3.0});
    Open(book);
    const std::size_t before = Messages().size();
    Block(BubbleDefinition());
    EXPECT_EQ(mCategoryCount, c.bubbles);
    ASSERT_EQ(Messages().size() - before, c.messages);
    if (c.messages > 0) {
      EXPECT_EQ(Messages().back(), test::kLimitMessage);
    }
    EXPECT_EQ(Cells("VEX_ChartData", c.bubbles + 1, 2, c.bubbles + 2, 2),
              "N" + std::to_string(c.bubbles) + "\n")
        << "the last one that fits, and nothing after it";
    EXPECT_EQ(Cells("VEX_ChartData", 2, 6, 2, 6), c.last.empty() ? "3" : "6")
        << "rows after the limit count for known names";
  }
}

TEST_F(BubbleDataTest, TinyBubblesAreRaisedAndEmptyOnesIfTheChartShowsThem) {
  struct Case {
    double first, second, third;
    S without, with;
  };
  const S option = test::Settings({"quadrants", "show-zero-bubbles"}, "static-attributes");
  for (const Case& c :
       {Case{1000, 1, 0, "1000\n2\n0", "1000\n2\n2"}, Case{1000, 2, 1.5, "1000\n2\n2", "1000\n2\n2"},
        Case{0, 0, 0, "0\n0\n0", "1\n1\n1"}, Case{10, -3, -4, "10\n-3\n-4", "10\n0.02\n0.02"},
        Case{1, 0.001, 0, "1\n0.002\n0", "1\n0.002\n0.002"}, Case{-1, -3, -4, "-1\n-3\n-4", "1\n1\n1"}}) {
    SCOPED_TRACE(c.without);
    Open(BubbleBook({{"A", "x", 0, 0, c.first}, {"B", "x", 0, 0, c.second}, {"C", "x", 0, 0, c.third}},
                    BubbleDefinition()));
    Definition definition = BubbleDefinition();
    Block(definition);
    AdjustBubbleSizes(chart_);
    EXPECT_EQ(Sizes(), c.without);
    definition.rest += option;
    Block(definition);
    AdjustBubbleSizes(chart_);
    EXPECT_EQ(Sizes(), c.with);
    EXPECT_EQ(Cells("Data1", 2, 5, 2, 5), std::to_string(static_cast<int>(c.first)))
        << "the source doesn't change";
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BubbleDataTest, TheLargestBubbleComesFirst) {
  Open(BubbleBook({{"A", "x", 1, 2, 5}, {"B", "y", 3, 4, 500}, {"C", "z", 5, 6, 70}}, BubbleDefinition()));
  Block(BubbleDefinition());
  EXPECT_TRUE(SortDataSheet(chart_));
  EXPECT_EQ(BlockNow(), kBubbleHeader + "B|y|3|4|500\nC|z|5|6|70\nA|x|1|2|5");
  EXPECT_EQ(Cells("VEX_ChartData", 1, 1, 4, 1), "VEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart1");

  // Charts of other types keep their order.
  Definition column{"VEX_Chart2", "column"};
  column.categories = Columns("categories", {"Name"}, "rows");
  column.series = "<series headings-in=\"none\"/>";
  column.values = "<values><column name=\"Size\"/></values>";
  Block(column);
  EXPECT_TRUE(SortDataSheet(chart_));
  EXPECT_EQ(BlockNow(), "|Size\nA|5\nB|500\nC|70");
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace plotsmith
