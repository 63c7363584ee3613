#include "builder/state/BuilderVariables.h"
#include "tests/support/BlockTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class PivotTest : public test::BlockTest {};

TEST_F(PivotTest, TheFiveTableLayouts) {
  struct Case {
    const char* what;
    S categories, series, values, block;
  };
  const S region = Columns("categories", {"Region"}, "rows"),
          amounts = Columns("categories", {"Amount", "Cost"});
  const S none = "<series headings-in=\"none\"/>", value = "<values><column name=\"Amount\"/></values>";
  const Case cases[] = {
      {"rows, rows", region, Columns("series", {"Product"}, "rows"), value,
       "|Widget|Gadget\nEast|11|7\nWest|5|"},
      {"rows, columns", region, Columns("series", {"Amount", "Cost"}), "",
       "|Amount|Cost\nEast|18|13\nWest|5|4"},
      {"columns, rows", amounts, Columns("series", {"Product"}, "rows"), "",
       "|Widget|Gadget\nAmount|16|7\nCost|12|5"},
      {"rows, none", region, none, value, "|Amount\nEast|18\nWest|5"},
      {"columns, none", amounts, none, "", "|Value\nAmount|23\nCost|17"},
      {"columns, none with a value column", amounts, none, value, "|Amount|Value\nAmount||23\nCost||17"},
      {"columns on both sides place nothing", amounts, Columns("series", {"Amount"}), "",
       "|Amount\nAmount|\nCost|"},
      {"the last of several category columns counts", Columns("categories", {"Product", "Region"}, "rows"),
       none, value, "|Amount\nWidget|\nGadget|\nEast|18\nWest|5"},
      {"rows, none without values", region, none, "", "(no map)"},
      {"values without a column", region, none, "<values/>", "(no map)"},
      {"a heading twice", Columns("categories", {"Amount", "AMOUNT"}), none, "", "(no map)"},
  };
  Open(test::SalesBook({}));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Block({"VEX_Chart1", "column", "table-id=\"Data1\"", c.categories, c.series, c.values}),
              c.block);
  }
  ASSERT_EQ(Messages().size(), 3u);
  EXPECT_EQ(
      Messages()[0],
      "Brindle Plotsmith: PSChartBuilder.BuildPivotMap\nFailed to populate a data definition collection");
  EXPECT_TRUE(Messages()[1].ends_with("\nObject variable or With block variable not set"));
  EXPECT_EQ(Messages()[2],
            "Brindle Plotsmith: PSChartBuilder.BuildPivotMap\nThis key is already associated with an element "
            "of this collection");
}

TEST_F(PivotTest, TheLimitOfSeriesAppliesInBothLayouts) {
  // There are 254 names, then a repeated one, then a new one.
  const auto rows = [&](int names, const S& last) {
    PlainBook book;
    test::PlainSheet sheet{"Data1"};
    sheet.rows.push_back({S("Region"), S("Product"), S("Amount")});
    for (int i = 1; i <= names; ++i) sheet.rows.push_back({S("R"), "P" + std::to_string(i), 1.0});
    if (!last.empty()) sheet.rows.push_back({S("R"), last, 1.0});
    book.sheets.push_back(sheet);
    return book;
  };
  struct Case {
    int names;
    S last;
    std::size_t messages;
  };
  for (const Case& c : {Case{254, "", 0}, Case{254, "p1", 1}, Case{254, "new", 1}, Case{253, "new", 0}}) {
    SCOPED_TRACE(c.last);
    const std::size_t before = Messages().size();
    Open(rows(c.names, c.last));
    const S block = Block({"VEX_Chart1"});
    EXPECT_EQ(mSeriesCount, 254);
    ASSERT_EQ(Messages().size() - before, c.messages);
    if (c.messages > 0) {
      EXPECT_EQ(Messages().back(), test::kLimitMessage);
    }
    EXPECT_EQ(Cells("VEX_ChartData", 2, 3, 2, 3), c.last == "p1" ? "2" : "1") << "known names still add up";
  }

  PlainBook wide;
  test::PlainSheet sheet{"Data1"};
  sheet.rows.resize(2);
  S series = "<series headings-in=\"columns\">";
  sheet.rows[0].push_back(S("Region"));
  sheet.rows[1].push_back(S("R"));
  for (int i = 1; i <= 300; ++i) {
    sheet.rows[0].push_back("C" + std::to_string(i));
    sheet.rows[1].push_back(static_cast<double>(i));
    series += "<column name=\"C" + std::to_string(i) + "\"/>";
  }
  wide.sheets.push_back(sheet);
  Open(wide);
  const std::size_t before = Messages().size();
  Definition definition{"VEX_Chart1"};
  definition.series = series + "</series>";
  definition.values = "";
  Block(definition);
  EXPECT_EQ(mSeriesCount, 254);
  ASSERT_EQ(Messages().size() - before, 1u);
  EXPECT_EQ(Messages().back(), test::kLimitMessage);
  EXPECT_EQ(Cells("VEX_ChartData", 1, 256, 2, 257), "C254|\n254|");
}

}  // namespace
}  // namespace plotsmith
