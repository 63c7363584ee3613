#include <algorithm>
#include <vector>

#include "builder/sheet/DataSheetFinishing.h"
#include "builder/state/BuilderVariables.h"
#include "tests/support/BlockTest.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

const S kBucketHeader = "|[-BlockColor-]|[-BlockSort-]|GROWTH|CORE\n[-StrategicBuckets-]||||\n";

class BucketDataTest : public test::BlockTest {};

TEST_F(BucketDataTest, ItemsAgainstBuckets) {
  struct Case {
    const char* what;
    S series, rest, block;
  };
  const Definition full = BucketDefinition();
  const Case cases[] = {
      // Core is an item here. Its name and its label take the spelling of the bucket.
      {"everything", full.series, full.rest, "Alpha|New|3|10|5\nBeta|old|1||20\nCORE|GROWTH|4||"},
      {"without labels", "<series headings-in=\"none\"><column name=\"Theme\"/></series>", full.rest,
       "Alpha|[none]|3|10|5\nBeta|[none]|1||20\nCORE|[none]|4||"},
      {"every value except rows means no label column", Columns("series", {"Theme"}, "columns"), full.rest,
       "Alpha|[none]|3|10|5\nBeta|[none]|1||20\nCORE|[none]|4||"},
      {"without a sort key", full.series, "", "Alpha|New|1|10|5\nBeta|old|1||20\nCORE|GROWTH|1||"},
  };
  Open(BucketBook(full));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Block({"VEX_Chart1", "strategic bucket", full.attributes, full.categories, c.series,
                     full.values, c.rest}),
              kBucketHeader + c.block);
    EXPECT_EQ(mMapInstructions.size(), 3u);
    EXPECT_EQ(mSeriesCount, 4);
  }
  InsertBucketData(chart_);
  EXPECT_EQ(Cells("VEX_ChartData", 2, 1, 3, 6),
            "VEX_Chart1|[-StrategicBuckets-]|||120|50\nVEX_Chart1|Alpha|New|1|10|5");
  EXPECT_TRUE(Messages().empty());

  // Without a category column only the row of the buckets is left, which is enough for a map.
  EXPECT_EQ(
      Block({"VEX_Chart1", "strategic bucket", full.attributes, "", full.series, full.values, full.rest}),
      kBucketHeader.substr(0, kBucketHeader.size() - 1));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BucketDataTest, TheLimitCountsTheRowOfTheBuckets) {
  struct Case {
    int items;
    S last;
    int rows;
    std::size_t messages;
  };
  for (const Case& c : {Case{251, "", 252, 0}, Case{252, "", 253, 0}, Case{252, "p1", 253, 0},
                        Case{253, "", 254, 1}, Case{254, "p1", 254, 1}}) {
    SCOPED_TRACE(std::to_string(c.items) + c.last);
    test::PlainBook book = BucketBook(BucketDefinition());
    auto& rows = book.Sheet("Data1").rows;
    rows.resize(1);
    for (int i = 1; i <= c.items; ++i) {
      rows.push_back({"P" + std::to_string(i), S("T"), S("Core"), 1.0, 1.0});
    }
    if (!c.last.empty()) rows.push_back({c.last, S("T"), S("Core"), 1.0, 1.0});
    Open(book);
    const std::size_t before = Messages().size();
    Block(BucketDefinition());
    EXPECT_EQ(mCategoryCount, c.rows);
    ASSERT_EQ(Messages().size() - before, c.messages);
    if (c.messages > 0) {
      EXPECT_EQ(Messages().back(), test::kLimitMessage);
    }
    // At most 252 items are kept. The key of the name at the limit makes a last row without id and name.
    const int kept = std::min(c.items, 252);
    EXPECT_EQ(Cells("VEX_ChartData", kept + 2, 1, kept + 3, 2),
              "VEX_Chart1|P" + std::to_string(kept) + "\n|");
    EXPECT_EQ(Cells("VEX_ChartData", 3, 6, 3, 6), c.last.empty() ? "1" : "2");
  }
}

TEST_F(BucketDataTest, ItemsAreSortedBelowTheRowOfTheBuckets) {
  Definition definition = BucketDefinition();
  Open(BucketBook(definition));
  Block(definition);
  EXPECT_TRUE(SortDataSheet(chart_));
  InsertBucketData(chart_);
  const S header = "|[-BlockColor-]|[-BlockSort-]|GROWTH|CORE\n[-StrategicBuckets-]|||120|50\n";
  EXPECT_EQ(BlockNow(), header + "CORE|GROWTH|4||\nAlpha|New|3|10|5\nBeta|old|1||20");
  definition.rest = "<sort-order sort=\"ascending\"><column name=\"Rank\"/></sort-order>";
  Block(definition);
  EXPECT_TRUE(SortDataSheet(chart_));
  EXPECT_EQ(BlockNow(), kBucketHeader + "Beta|old|1||20\nAlpha|New|3|10|5\nCORE|GROWTH|4||");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BucketDataTest, ASingleItemIsSorted) {
  test::PlainBook book = BucketBook(BucketDefinition());
  book.Sheet("Data1").rows.resize(2);
  Open(book);
  Block(BucketDefinition());
  EXPECT_TRUE(SortDataSheet(chart_));
  EXPECT_EQ(BlockNow(), kBucketHeader + "Alpha|New|2|10|");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BucketDataTest, BucketsBeyondAllNumbersAreAnOverflow) {
  test::PlainBook book = BucketBook(BucketDefinition());
  for (const int row : {3, 5}) book.Sheet("Buckets").rows[row][1] = 1E+308;
  Open(book);
  EXPECT_EQ(Block(BucketDefinition()), "(no map)");
  ASSERT_FALSE(Messages().empty());
  EXPECT_EQ(Messages()[0], "Brindle Plotsmith: PSFunctions.GetStrategicBuckets\nOverflow");
}

TEST_F(BucketDataTest, SomeChartsAreNotSorted) {
  Definition definition = BucketDefinition();
  Open(BucketBook(definition));
  definition.rest = "<sort-order><column name=\"Rank\"/></sort-order>";
  Block(definition);
  EXPECT_FALSE(SortDataSheet(chart_));
  EXPECT_EQ(Messages(),
            std::vector<S>{"Brindle Plotsmith: PSChartBuilder.SortDataSheet\nInvalid use of Null"});
  definition.rest = "";
  Block(definition);
  EXPECT_TRUE(SortDataSheet(chart_)) << "without a sort order there is nothing to do";
  EXPECT_EQ(Messages().size(), 1u);
}

}  // namespace
}  // namespace plotsmith
