
#include "common/RunVariables.h"
#include "runtime/Strings.h"
#include "tests/support/ChartCallsTest.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/Patterns.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

const S kHide =
    "<auto-persistence><persist property=\"legend-visibility\" value=\"hide\"/></auto-persistence>";

class ChartLegendTest : public test::ChartCallsTest {
 protected:
  /// Returns the calls on shapes without their names and paths, such as "Left = 8".
  static Lines ShapeCalls(const Lines& calls) {
    const S path = R"re(^.*?\.Shapes(\.Range)?(\((Array\()?("[^"]*"(, )?)*\)?\))?\.)re";
    Lines found;
    for (const S& line : With(calls, ".Shapes")) found.push_back(test::ReplaceMatches(line, path, ""));
    return found;
  }
  /// Returns the texts of the drawn entries.
  static Lines Entries(const Lines& calls) {
    Lines texts;
    for (const S& line : With(ShapeCalls(calls), "TextFrame.Characters.Text = ")) {
      texts.push_back(line.substr(line.find('"')));
    }
    return texts;
  }
  S Names() {
    S names;
    const auto shapes = Chart()->Shapes();
    for (int i = 1; i <= shapes->Count(); ++i) names += shapes->Item(i)->Name() + ";";
    return names;
  }
};

TEST_F(ChartLegendTest, EachNameHasAnEntryAndTheyAreGrouped) {
  const auto book = BubbleBook({{"A", "North", 1, 2, 30}, {"B", "South", 3, 4, 20}, {"C", "North", 5, 6, 10}},
                               BubbleDefinition());
  Lines expected;
  const auto entry = [&](const S& name, const S& top) {
    for (const S& line : {S("AddTextbox(1, 0, 0, 0, 0)"),
                          "Name = \"" + name + " Text\"",
                          "AlternativeText = \"VEX_LS_" + name + " Text\"",
                          S("TextFrame.Characters.Font.Name = \"Arial\""),
                          S("TextFrame.Characters.Font.Size = 9"),
                          S("TextFrame.Characters.Font.Color = 0"),
                          S("TextFrame.Characters.Font.Bold = False"),
                          "TextFrame.Characters.Text = \"" + name + "\"",
                          S("TextFrame2.WordWrap = False"),
                          S("TextFrame2.AutoSize = 1"),
                          S("TextFrame2.MarginTop = 0"),
                          S("TextFrame.VerticalAlignment = -4160"),
                          S("TextFrame.HorizontalAlignment = -4131"),
                          S("TextFrame.MarginTop = 0"),
                          S("Width = 22.5"),
                          S("Height = 18"),
                          S("Left = 8"),
                          "Top = " + top,
                          S("AddShape(1, 0, 0, 0, 0)"),
                          "Name = \"" + name + " Key\"",
                          "AlternativeText = \"VEX_LS_" + name + " Key\"",
                          S("Height = 8"),
                          S("Width = 8"),
                          S("Fill.BackColor.RGB"),
                          S("Fill.ForeColor.RGB"),
                          "Top = " + top,
                          S("LockAspectRatio = True"),
                          S("AutoShapeType = 9"),
                          S("Line.Visible = False")}) {
      expected.push_back(line);
    }
  };
  entry("North", "13");
  entry("South", "26");
  // 8 + 22.5 is rounded to the even 30, and the key adds 8.
  for (const char* line : {"Group", "Name = \"VEX_Legend\"", "Width = 38", "Left", "Top"})
    expected.push_back(line);
  const Lines calls = ChartCalls(book);
  Lines shapes = test::WithoutValues(ShapeCalls(calls), {".RGB"});
  ASSERT_GE(shapes.size(), 2u);
  for (std::size_t i = shapes.size() - 2; i < shapes.size(); ++i) shapes[i].erase(shapes[i].find(" = "));
  EXPECT_EQ(shapes, expected);
  EXPECT_EQ(With(calls, "PlotArea.Width").size(), 2u);
  EXPECT_TRUE(Messages().empty());

  SaveAndReopen();
  EXPECT_EQ(Names(), "VEX_Legend;");
  EXPECT_FALSE(Chart()->HasLegend());
  const auto legend = Chart()->Shapes()->Range({"VEX_Legend"});
  EXPECT_NEAR(legend->Width(), 38, 0.1);
  EXPECT_NE(SavedPart("/xl/charts/chart1.xml").find("userShapes"), S::npos);

  // The next refresh draws it again in the same place.
  const Lines again = ShapeCalls(ChartCalls());
  ASSERT_FALSE(again.empty());
  EXPECT_EQ(again.front(), "Delete");
  EXPECT_EQ(again.size(), expected.size() + 1);
  EXPECT_EQ(Names(), "VEX_Legend;");
}

TEST_F(ChartLegendTest, ADeletedLegendIsNotRestored) {
  Definition definition = BubbleDefinition();
  definition.rest += kHide;
  const std::initializer_list<Bubble> bubbles = {{"A", "North", 1, 2, 30}};
  const Lines calls = ChartCalls(BubbleBook(bubbles, definition));
  EXPECT_TRUE(Entries(calls).empty());
  EXPECT_EQ(Names(), "");
  EXPECT_EQ(With(calls, "HasLegend").back(), "Chart.HasLegend = False");
  EXPECT_EQ(With(calls, "PlotArea.Width").size(), 1u) << "the plot area gets its width back";

  // If the definition says "hide" and the shape exists, the legend is drawn.
  ChartCalls(BubbleBook(bubbles, BubbleDefinition()));
  ASSERT_EQ(Names(), "VEX_Legend;");
  S stored = Cells("VEX_ChartDefinitions", 2, 1, 2, 1);
  if (stored.find("auto-persistence") == S::npos)
    stored = runtime::Replace(stored, "</chart>", kHide + "</chart>");
  Book().FindWorksheet("VEX_ChartDefinitions")->SetCellValueAt(2, 1, stored);
  EXPECT_EQ(Entries(ChartCalls()), Lines{"\"North\""});
  EXPECT_EQ(Names(), "VEX_Legend;");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ChartLegendTest, ADrawnLegendReplacesTheBuiltInOne) {
  Definition definition = BubbleDefinition();
  definition.rest += runtime::Replace(kHide, "hide", "show");
  const Lines calls = ChartCalls(BubbleBook({{"A", "North", 1, 2, 30}}, definition));
  EXPECT_EQ(Entries(calls), Lines{"\"North\""});
  EXPECT_EQ(With(calls, "HasLegend").back(), "Chart.HasLegend = False");
  EXPECT_EQ(Names(), "VEX_Legend;");
}

TEST_F(ChartLegendTest, SomeNamesAreMissingAndSomePreventTheLegend) {
  const auto entries = [&](const S& first, const S& second) {
    return Entries(
        ChartCalls(BubbleBook({{"A", first, 1, 2, 30}, {"B", second, 3, 4, 20}}, BubbleDefinition())));
  };
  EXPECT_EQ(entries("North", "Northern"), (Lines{"\"North\"", "\"Northern\""}));
  EXPECT_EQ(entries("Northern", "North"), Lines{"\"Northern\""}) << "a part of an earlier name";
  EXPECT_EQ(entries("Northern", "north"), (Lines{"\"Northern\"", "\"north\""})) << "case counts";
  EXPECT_EQ(Names(), "VEX_Legend;");
  entries("East|West", "North");
  EXPECT_EQ(Names(), "") << "a part of a name has no colour";
  EXPECT_EQ(entries("Strategic Buckets", "North"), Lines{"\"North\""});
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ChartLegendTest, SizesAndPositionsFollowTheStoredFont) {
  struct Case {
    S size, left;
    Lines frame;  // Width, height, left and top of the text "North", and height and width of its key.
  };
  for (const Case& c :
       {Case{"4", "30", {"Width = 10", "Height = 8", "Left = 4", "Top = 3", "Height = 3", "Width = 3"}},
        Case{"1", "30", {"Width = 2.5", "Height = 2", "Left = 1", "Height = 1", "Width = 1"}},
        Case{"2", "1", {"Width = 5", "Height = 4", "Left = 2", "Height = 1", "Width = 1"}},
        Case{"12pt",
             "30",
             {"Width = 30", "Height = 24", "Left = 14", "Top = 19", "Height = 11", "Width = 11"}}}) {
    Definition definition = BubbleDefinition();
    definition.rest += "<auto-persistence><persist property=\"legend-font-size\" value=\"" + c.size +
                       "\"/><persist property=\"legend-left\" value=\"" + c.left +
                       "\"/><persist property=\"legend-top\" value=\"40.5\"/></auto-persistence>";
    const Lines shapes = ShapeCalls(ChartCalls(BubbleBook({{"A", "North", 1, 2, 30}}, definition)));
    Lines frame;
    for (const S& line : shapes) {
      if (line.starts_with("Width") || line.starts_with("Height") || line.starts_with("Left") ||
          line.starts_with("Top"))
        frame.push_back(line);
    }
    ASSERT_GE(frame.size(), c.frame.size() + 3);
    EXPECT_EQ(Lines(frame.begin(), frame.begin() + static_cast<std::ptrdiff_t>(c.frame.size())), c.frame);
    EXPECT_EQ(Lines(frame.end() - 2, frame.end()), (Lines{"Left = " + c.left, "Top = 40.5"}))
        << "a position that the user has set";
  }
}

}  // namespace
}  // namespace plotsmith
