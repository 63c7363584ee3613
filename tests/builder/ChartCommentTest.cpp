#include <algorithm>

#include "builder/ChartRefreshDriver.h"
#include "builder/looks/ChartComment.h"
#include "common/RunVariables.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class ChartCommentTest : public test::HostTest {};

/// Sets a comment in a definition in memory, like the wizard, and builds the chart.
void Comment(const S& id, const S& text) {
  RetrieveTableDefinitions();
  RetrieveChartDefinitions();
  const auto document = colCharts->Item(id);
  auto chart = document.documentElement();
  if (auto old = chart.selectSingleNode("comment")) chart.removeChild(old);
  auto comment = document.createElement("comment");
  comment.appendChild(document.createTextNode(text));
  chart.appendChild(comment);
  PopulateChart(id);
  SaveChartDefinition(document);
  colTables = colCharts = nullptr;
}

TEST_F(ChartCommentTest, CommentsAreWrittenAndReadInPieces) {
  S text;
  for (int i = 0; i < 40; ++i) text += "0123456789";
  text.replace(199, 2,
               "\xF0\x9D\x84\x9E");  // These are units 200 and 201, so the cut is inside the character.
  text.insert(300, "\n");
  Open(SalesBook({Definition{"VEX_Chart1"}}));
  Comment("VEX_Chart1", text);
  const auto calls = [&](const char* what) {
    return std::count_if(journal_.begin(), journal_.end(),
                         [&](const S& line) { return line.find(what) != S::npos; });
  };
  EXPECT_EQ(calls("Sheets(\"Charts\").Shapes.AddTextbox(1, 379, 5, 180, 120)"), 1);
  EXPECT_EQ(calls(".Insert("), 2);
  EXPECT_EQ(calls("\xEF\xBF\xBD"), 2) << "half of a surrogate pair isn't valid UTF-8";
  SaveAndReopen();
  const auto shapes = [&] { return oWorkbook->Worksheets()->Item("Charts")->Shapes(); };
  const auto box = [&] { return shapes()->Item(2); };
  ASSERT_EQ(shapes()->Count(), 2);
  EXPECT_EQ(box()->Type(), excel::msoTextBox);
  EXPECT_EQ(box()->AlternativeText(), "VEX_Chart1");
  EXPECT_EQ(box()->TextFrame()->Characters()->Text(), text);
  EXPECT_NEAR(box()->Left(), shapes()->Item(1)->Left() + shapes()->Item(1)->Width() - 5, 0.01);
  EXPECT_NEAR(box()->Top(), 5, 0.01);
  EXPECT_NEAR(box()->Width(), 180, 0.01);
  EXPECT_NEAR(box()->Height(), 120, 0.01);

  // The text of the box becomes the comment.
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(box()->TextFrame()->Characters()->Text(), text);
  box()->TextFrame()->Characters()->SetText(text + " and more");
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 2);
  EXPECT_EQ(box()->TextFrame()->Characters()->Text(), text + " and more");
  EXPECT_NE(Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find(" and more</comment>"), S::npos);

  // An empty comment deletes the box, and deleting the box deletes the comment.
  Comment("VEX_Chart1", "");
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 1);
  Comment("VEX_Chart1", "again");
  SaveAndReopen();
  shapes()->Item(2)->Delete();
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 1);
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find("<comment"), S::npos);
}

}  // namespace
}  // namespace plotsmith
