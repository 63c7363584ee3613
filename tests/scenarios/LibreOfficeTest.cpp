#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <set>
#include <vector>

#include "runtime/Variant.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/HostTest.h"
#include "tests/support/Patterns.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using test::Definition;
using S = std::string;

/// Tests with LibreOffice as an independent reader: it opens the saved workbook and returns the contents of
/// its charts.
class LibreOfficeTest : public test::HostTest {
 protected:
  void SetUp() override {
    if (std::system("command -v soffice > /dev/null 2>&1") != 0)
      GTEST_SKIP() << "LibreOffice isn't installed";
  }

  void Office(const S& arguments) {
    const S command = "soffice -env:UserInstallation=file://" + (folder_ / "profile") + " --headless " +
                      arguments + " > /dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << arguments;
  }

  /// Runs a macro on the saved workbook (the variable `book`), and stores the result as a workbook.
  void EditInOffice(const S& statements) {
    Office("--terminate_after_init");  // This creates the profile.
    const S url = "file://" + folder_.Path().string();
    std::ofstream(folder_ / "profile/user/basic/Standard/Module1.xba")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<script:module xmlns:script=\"http://openoffice.org/2000/script\" script:name=\"Module1\" "
           "script:language=\"StarBasic\">\nSub Main\nDim load(0) As New "
           "com.sun.star.beans.PropertyValue\nload(0).Name = &quot;Hidden&quot;\nload(0).Value = True\nbook "
           "= StarDesktop.loadComponentFromURL(&quot;"
        << url << "/saved.xlsx&quot;, &quot;_blank&quot;, 0, load())\n"
        << statements
        << "Dim store(0) As New com.sun.star.beans.PropertyValue\nstore(0).Name = &quot;FilterName&quot;\n"
           "store(0).Value = &quot;Calc MS Excel 2007 XML&quot;\nbook.storeToURL(&quot;"
        << url << "/edited.xlsx&quot;, store())\nbook.close(True)\nEnd Sub\n</script:module>\n";
    Office("'macro:///Standard.Module1.Main'");
  }

  /// Converts the saved workbook to LibreOffice's own format.
  xlsx::Archive Convert() {
    Office("--convert-to ods --outdir " + folder_.Path().string() + " " + (folder_ / "saved.xlsx"));
    return xlsx::Archive(folder_ / "saved.ods");
  }
  /// Returns the text of an entry, or nothing if the archive doesn't contain it.
  static std::optional<S> Entry(const xlsx::Archive& archive, const S& name) {
    const auto& entries = archive.Entries();
    const auto entry =
        std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.name == name; });
    if (entry == entries.end()) return std::nullopt;
    S text(entry->size, '\0');
    const auto stream = archive.Open(static_cast<std::size_t>(entry - entries.begin()));
    std::size_t total = 0;
    while (const auto count = stream->Read(text.data() + total, text.size() - total)) total += count;
    return text;
  }
  /// Returns the charts of the saved workbook as LibreOffice writes them, in the order of their numbers in
  /// its package.
  std::vector<S> Charts() {
    const xlsx::Archive archive = Convert();
    std::vector<S> charts;
    while (auto text = Entry(archive, "Object " + std::to_string(charts.size() + 1) + "/content.xml"))
      charts.push_back(std::move(*text));
    return charts;
  }

  /// Draws the charts of a workbook, and returns them in the same way.
  std::vector<S> Drawn(const test::PlainBook& book) {
    Open(book);
    RefreshAndReopen();
    return Charts();
  }

  /// Returns the data of a chart, with "\n" between rows and "|" between cells.
  static S Data(const S& content) {
    pugi::xml_document document;
    xlsx::xml::Parse(document, content);
    S text;
    const auto table = document.select_node("//table:table[@table:name='local-table']").node();
    for (const auto& row : table.select_nodes(".//table:table-row")) {
      if (!text.empty()) text += '\n';
      bool first = true;
      for (const auto& cell : row.node().children("table:table-cell")) {
        if (!first) text += '|';
        first = false;
        const S value = cell.attribute("office:value").value();
        text += value == "NaN" ? S() : !value.empty() ? value : xlsx::xml::Text(cell.child("text:p"));
      }
    }
    return text;
  }
  /// Returns the left edges of the texts in the drawn legend, from the left edge of the chart.
  static std::set<S> LegendTextLefts(const S& content) {
    std::set<S> lefts;
    for (const test::Match& text :
         test::MatchesOf(content, "draw:name=\"[^\"]* Text\"[^>]* svg:x=\"([^\"]*)\""))
      lefts.insert(text[1]);
    return lefts;
  }
  static S Class(const S& content) {
    const auto at = content.find("chart:class=\"chart:");
    return content.substr(at + 19, content.find('"', at + 19) - at - 19);
  }
};

TEST_F(LibreOfficeTest, ReadsTheSameSeries) {
  Definition bar{"VEX_Chart1", "bar"}, area{"VEX_Chart2", "area"},
      column{"VEX_Chart3", "column", "table-id=\"Data1\" title=\"3-D\""};
  bar.rest = test::Settings({"stacked"});
  column.rest =
      "<data-labels><data-label show=\"values\"/></data-labels><dynamic-attributes><attribute "
      "setting=\"3D\"/></dynamic-attributes>";
  column.series = "<series headings-in=\"columns\"><column name=\"Amount\"/><column name=\"Cost\"/></series>";
  const auto charts = Drawn(test::SalesBook({bar, area, column}));
  ASSERT_EQ(charts.size(), 3u);
  EXPECT_EQ(Data(charts[0]), "|Widget|Gadget\nEast|11|7\nWest|5|");
  EXPECT_EQ(Data(charts[1]), "|Widget|Gadget\nEast|11|7\nWest|5|");
  EXPECT_EQ(Data(charts[2]), "|Amount|Cost\nEast|18|13\nWest|5|4");
  EXPECT_EQ(Class(charts[0]), "bar");
  EXPECT_EQ(Class(charts[1]), "area");
  EXPECT_EQ(Class(charts[2]), "bar");
  EXPECT_NE(charts[0].find("chart:vertical=\"true\""), S::npos);
  EXPECT_NE(charts[0].find("chart:stacked=\"true\""), S::npos);
  EXPECT_EQ(charts[2].find("chart:vertical=\"true\""), S::npos);
  EXPECT_NE(charts[2].find("chart:three-dimensional=\"true\""), S::npos);
  EXPECT_NE(charts[2].find("chart:data-label-number=\"value\""), S::npos);
  EXPECT_NE(charts[2].find(">3-D<"), S::npos);
}

TEST_F(LibreOfficeTest, ReadsPiesBubblesAndBuckets) {
  Definition pie{"VEX_Chart1", "pie"};
  pie.series = "<series headings-in=\"none\"/>";
  auto charts = Drawn(test::SalesBook({pie}));
  ASSERT_EQ(charts.size(), 1u);
  EXPECT_EQ(Class(charts[0]), "circle");
  EXPECT_NE(Data(charts[0]).find("East|18\nWest|5"), S::npos) << Data(charts[0]);

  charts = Drawn(test::BubbleBook({{"A", "North", 1, 2, 30}, {"B", "South", 3, 4, 20}, {"C", "HR", 5, 6, 10}},
                                  test::BubbleDefinition()));
  ASSERT_EQ(charts.size(), 1u);
  EXPECT_EQ(Class(charts[0]), "bubble");
  for (const char* seen : {">North<", ">South<", "office:value=\"3\"", "office:value=\"4\"",
                           "office:value=\"30\"", "office:value=\"20\""}) {
    EXPECT_NE(charts[0].find(seen), S::npos) << seen;
  }
  EXPECT_EQ(LegendTextLefts(charts[0]).size(), 1u) << "the texts are aligned to the left";

  charts = Drawn(test::BucketBook(test::BucketDefinition()));
  ASSERT_EQ(charts.size(), 1u);
  EXPECT_NE(Data(charts[0]).find("GROWTH|"), S::npos) << Data(charts[0]);
  EXPECT_NE(charts[0].find(">Strategic Buckets<"), S::npos);
  EXPECT_NE(charts[0].find("chart:class=\"chart:line\""), S::npos) << "the buckets' own values";
}

TEST_F(LibreOfficeTest, AChartOnANewSheetHasItsHeight) {
  Open(test::SalesBook({}));
  const auto sheet = Book().Tabs().Add(1);
  sheet->SetName("New");
  sheet->ChartObjects()->Add(48, 45, 480, 300);
  SaveAndReopen();
  pugi::xml_document content;
  xlsx::xml::Parse(content, Entry(Convert(), "content.xml").value_or(""));
  const auto frame = content.select_node("//table:table[@table:name='New']//draw:frame").node();
  const S height = frame.attribute("svg:height").value();
  EXPECT_NEAR(runtime::Val(std::string_view(height)) * (height.ends_with("in") ? 72 : 72 / 2.54), 300, 1)
      << height;
}

TEST_F(LibreOfficeTest, ItsEditsSurviveTheNextRefresh) {
  Definition column{"VEX_Chart1", "column"}, area{"VEX_Chart2", "area"};
  column.rest =
      "<axes><axis type=\"value\" label=\"Money\" sticky=\"no\"/></axes><data-labels><data-label "
      "show=\"values\"/></data-labels>";
  Open(test::SalesBook({column, area}));
  RefreshAndReopen();
  EditInOffice(
      "chart = "
      "book.Sheets.getByName(&quot;Charts&quot;).Charts.getByIndex(0).EmbeddedObject\nchart.Title.String = "
      "&quot;Retitled&quot;\nchart.Legend.Alignment = "
      "com.sun.star.chart.ChartLegendPosition.BOTTOM\nchart.Diagram.Stacked = True\nchart.Diagram.Vertical = "
      "True\nchart.Diagram.YAxisTitle.String = &quot;Euros&quot;\nchart.Area.FillColor = RGB(255, 255, "
      "204)\nchart.Area.FillStyle = com.sun.star.drawing.FillStyle.SOLID\n");
  OpenFile(folder_ / "edited.xlsx");
  RefreshAndReopen();
  EXPECT_TRUE(Messages().empty());
  const S definition = Cells("VEX_ChartDefinitions", 2, 1, 2, 1);
  for (const char* kept : {"title=\"Retitled\"", "type=\"bar\"",
                           "<dynamic-attributes><attribute setting=\"stacked\"/></dynamic-attributes>",
                           "\"legend-position\" value=\"-4107\"", "label=\"Euros\" sticky=\"yes\"",
                           "<data-label show=\"values\"/>"}) {
    EXPECT_NE(definition.find(kept), S::npos) << kept << "\n  isn't in " << definition;
  }
  EXPECT_NE(Cells("VEX_ChartDefinitions", 3, 1, 3, 1).find("type=\"area\""), S::npos);
  const auto charts = Charts();
  ASSERT_EQ(charts.size(), 2u);
  EXPECT_EQ(Data(charts[0]), "|Widget|Gadget\nEast|11|7\nWest|5|");
  EXPECT_NE(charts[0].find(">Retitled<"), S::npos);
  EXPECT_NE(charts[0].find("#ffffcc"), S::npos) << "the colour that the definition doesn't contain";
}

}  // namespace
}  // namespace plotsmith
