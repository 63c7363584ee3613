#include "pages/SamplePictures.h"
#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class SelectTableTest : public PagesTest {};

const S kAllTypes = "optType(0) optType(1) optType(2) optType(3) optType(4) optType(5)";

/// Returns a workbook with the tables Data1 and Data2, which has no numbers.
PlainBook TwoTables(const std::vector<Definition>& definitions) {
  PlainBook book = SalesBook(definitions);
  book.sheets.push_back({"Data2", {{S("A"), S("B")}, {S("x"), S("y")}}});
  return book;
}

TEST_F(SelectTableTest, TheTableDeterminesTheTypes) {
  PlainBook oneLabel = NewBucketBook();
  oneLabel.Sheet("Data1").rows = {{S("Bucket"), S("Sum")}, {S("Growth"), 10.0}, {S("core"), 20.0}};
  PlainBook noMatch = NewBucketBook();
  noMatch.Sheet("Data1").rows[0][3] = S("Other");
  noMatch.Sheet("Data1").rows[0][4] = S("One more");
  const std::pair<PlainBook, S> cases[] = {
      {BookOfColumns({"A"}, {"N"}), "optType(5)"},
      {BookOfColumns({"A", "B"}, {"N"}), "optType(5)"},
      {BookOfColumns({"A"}, {}), kAllTypes},
      {BookOfColumns({}, {"N"}), kAllTypes},
      {NewBucketBook(), ""},
      {oneLabel, "optType(5)"},
      {noMatch, "optType(5)"},
  };
  for (const auto& [book, off] : cases) {
    EXPECT_EQ(Play(book, "page frmPSSelectTable; look off " + kAllTypes +
                             " cmdBack; select grdTables Data1; look off " + off + (off.empty() ? "" : " ") +
                             "cmdBack"),
              "");
  }
}

TEST_F(SelectTableTest, TheTypeIsKeptIfTheTableAllowsIt) {
  PlainBook two = TwoTables({});
  PlainBook buckets = NewBucketBook();
  buckets.sheets.push_back(SalesSheet("Data2"));
  const std::pair<PlainBook, S> cases[] = {
      {two,
       "look grdTables Data1|Data2; select grdTables Data1; choose optType(3); select grdTables Data2; "
       "expect optType(3).Value no; look pictures ; select grdTables Data1; expect optType(3).Value no"},
      {buckets,
       "select grdTables Data1; choose optType(4); select grdTables Data2; expect optType(4).Value yes; "
       "look pictures imgBubble; press cmdNext; page frmPSLayoutBubble"},
      {buckets,
       "select grdTables Data1; choose optType(5); select grdTables Data2; expect optType(5).Value no; look "
       "pictures ; press cmdNext; expect message \"Please select a chart type\""},
      {buckets,
       "select grdTables Data1; choose optType(5); double grdTables Data1; page frmPSLayoutStrBuck; press "
       "cmdBack; expect optType(5).Value yes; expect grdTables.Selected Data1; look pictures imgStrBuck"},
      {two, "press cmdHelp; look default cmdNext; escape; page none"},
  };
  for (const auto& [book, script] : cases) EXPECT_EQ(Play(book, script), "");
  EXPECT_EQ(helpTopics_, std::vector{2});
}

TEST_F(SelectTableTest, EachTypeHasItsPictureAndItsPage) {
  const std::pair<S, S> types[] = {{"imgBar", "frmPSLayoutABC"},       {"imgColumn", "frmPSLayoutABC"},
                                   {"imgArea", "frmPSLayoutABC"},      {"imgPie", "frmPSLayoutPie"},
                                   {"imgBubble", "frmPSLayoutBubble"}, {"imgStrBuck", "frmPSLayoutStrBuck"}};
  const std::int32_t topics[] = {3, 4, 5, 6, 7, 18};
  for (int type = 0; type < 6; ++type) {
    EXPECT_EQ(Play(NewBucketBook(), "select grdTables Data1; choose optType(" + std::to_string(type) +
                                        "); look pictures " + types[type].first + "; press cmdNext; page " +
                                        types[type].second + "; press cmdHelp"),
              "");
    EXPECT_EQ(helpTopics_, std::vector{topics[type]});
  }
  const std::set<S> known(aSamplePictureNames.begin(), aSamplePictureNames.end());
  EXPECT_EQ(images_, known) << "the pages have exactly the pictures that can be drawn";
}

TEST_F(SelectTableTest, MessagesAreShownOnce) {
  const S noTable =
      "expect message \"Please select the table on which the chart is based\"; look focus grdTables";
  const S noType = "expect message \"Please select a chart type\"; look focus ";
  const auto invalid = [](const S& name) {
    return "expect message \"Table '" + name +
           "' is not currently valid for this chart. You must select a different table to continue.\"; page "
           "frmPSSelectTable; ";
  };
  Definition onTexts;
  onTexts.attributes = "table-id=\"Data2\"";
  const S copyChart = "select grdCharts #1; press cmdCopy; ";
  const std::pair<PlainBook, S> cases[] = {
      {SalesBook({}), "press cmdNext; " + noTable + "; press cmdFinish; " + noTable},
      {SalesBook({}), "select grdTables Data1; press cmdNext; " + noType + "cmdNext; press cmdFinish; " +
                          noType + "cmdFinish"},
      {TwoTables({onTexts}), ModifyChart() + invalid("Data2") + "look off " + kAllTypes +
                                 "; press cmdNext; " + noType +
                                 "cmdNext; select grdTables Data1; choose optType(0); press cmdNext; page "
                                 "frmPSLayoutABC; definition; press cmdBack; page frmPSSelectTable"},
      {TwoTables({onTexts}), copyChart + invalid("Data2") + "press cmdBack; page frmPSSelectAction"},
      {TwoTables({onTexts}),
       "press cmdNew; page frmPSSelectTable; select grdTables Data2; press cmdNext; " + noType + "cmdNext"},
  };
  for (const auto& [book, script] : cases) {
    EXPECT_EQ(Play(book, script), "");
    if (definitions_.empty()) continue;
    EXPECT_NE(definitions_[0].find(" type=\"bar\" "), S::npos) << definitions_[0];
    EXPECT_NE(definitions_[0].find(" table-id=\"Data1\""), S::npos) << definitions_[0];
    EXPECT_NE(definitions_[0].find(" table-corrupted=\"no\""), S::npos) << definitions_[0];
  }
}

}  // namespace
}  // namespace plotsmith
