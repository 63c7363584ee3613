#include <functional>
#include <vector>

#include "tests/support/FamilyBooks.h"
#include "tests/support/HostTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

void ReplaceFirst(S& text, const S& from, const S& to) {
  const auto at = text.find(from);
  ASSERT_NE(at, S::npos) << from << " isn't in " << text;
  text.replace(at, from.size(), to);
}
void InsertBefore(S& text, const S& mark, const S& what) { ReplaceFirst(text, mark, what + mark); }
/// Replaces the text from the first `from` up to the next `to`, which is kept.
void ReplaceSpan(S& text, const S& from, const S& to, const S& what) {
  const auto begin = text.find(from);
  ASSERT_NE(begin, S::npos) << from << " isn't in " << text;
  text.replace(begin, text.find(to, begin) - begin, what);
}

class HandEditsTest : public HostTest {
 protected:
  /// Changes the saved file, as another program could.
  void Edit(const std::function<void(xlsx::Package&)>& edit) {
    auto package = xlsx::Package::Open(folder_ / "saved.xlsx");
    edit(package);
    package.Save(folder_ / "saved.xlsx");
    OpenFile(folder_ / "saved.xlsx");
  }
  void EditChart(const std::function<void(S&)>& edit) {
    EditPart(folder_ / "saved.xlsx", kChart, edit);
    OpenFile(folder_ / "saved.xlsx");
  }
  void DrawChart(const S& rest) {
    Definition definition{"VEX_Chart1", "column", "table-id=\"Data1\" title=\"Sales\" number-format=\"0\""};
    definition.rest = rest;
    Open(SalesBook({definition}));
    RefreshAndReopen();
  }
  S StoredDefinition() { return Cells("VEX_ChartDefinitions", 2, 1, 2, 1); }

  static constexpr const char* kChart = "/xl/charts/chart1.xml";
};

const S kRed = "<a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill>";
const S kGradient =
    "<c:spPr><a:gradFill><a:gsLst><a:gs pos=\"0\"><a:srgbClr val=\"FFFFFF\"/></a:gs><a:gs pos=\"100000\">"
    "<a:srgbClr val=\"4472C4\"/></a:gs></a:gsLst><a:lin ang=\"5400000\"/></a:gradFill></c:spPr>";

/// A change that a person makes to a chart, as it is stored in the file, and the expected contents after two
/// refreshes.
struct HandEdit {
  const char* what;
  std::function<void(S& xml)> edit;
  std::vector<S> chart;       ///< Expected in the chart part.
  std::vector<S> definition;  ///< Expected in the definition.
};

TEST_F(HandEditsTest, ChangesMadeByHandSurvive) {
  const S label =
      "<c:txPr><a:bodyPr/><a:lstStyle/><a:p><a:pPr><a:defRPr sz=\"1400\" b=\"1\">" + kRed +
      "<a:latin typeface=\"Georgia\"/></a:defRPr></a:pPr><a:endParaRPr lang=\"en-US\"/></a:p></c:txPr>";
  const S tick =
      "<c:txPr><a:bodyPr rot=\"-2700000\"/><a:lstStyle/><a:p><a:pPr><a:defRPr sz=\"700\"/>"
      "</a:pPr><a:endParaRPr lang=\"de-DE\"/></a:p></c:txPr>";
  const HandEdit cases[] = {
      {"another title, in colour",
       [](S& xml) {
         ReplaceFirst(xml, "<a:rPr lang=\"en-US\"/><a:t>Sales</a:t>",
                      "<a:rPr lang=\"en-US\" sz=\"2000\">" + kRed + "</a:rPr><a:t>Turnover &amp; more</a:t>");
       },
       {"sz=\"2000\">" + kRed + "</a:rPr><a:t>Turnover &amp; more</a:t>"},
       {"title=\"Turnover &amp; more\""}},
      {"no title",
       [](S& xml) {
         ReplaceSpan(xml, "<c:title>", "<c:autoTitleDeleted", "");
         ReplaceFirst(xml, "autoTitleDeleted val=\"0\"", "autoTitleDeleted val=\"1\"");
       },
       {"<c:chart><c:autoTitleDeleted val=\"1\"/><c:plotArea>"},
       {"title=\"\""}},
      {"the legend moved by hand, with a frame",
       [](S& xml) {
         ReplaceSpan(
             xml, "<c:legend>", "<c:plotVisOnly",
             "<c:legend><c:legendPos val=\"r\"/><c:layout><c:manualLayout><c:xMode val=\"edge\"/><c:yMode "
             "val=\"edge\"/><c:x val=\"0.125\"/><c:y val=\"0.25\"/><c:w val=\"0.2\"/><c:h "
             "val=\"0.3\"/></c:manualLayout></c:layout><c:overlay val=\"1\"/><c:spPr><a:ln w=\"9525\">" +
                 kRed + "</a:ln></c:spPr></c:legend>");
       },
       {"<c:x val=\"0.125\"/><c:y val=\"0.25\"/><c:w val=\"0.2\"/><c:h val=\"0.3\"/>",
        "<c:overlay val=\"1\"/><c:spPr><a:ln w=\"9525\">" + kRed},
       {"\"legend-left\" value=\"48\"", "\"legend-top\" value=\"67.5\""}},
      {"no legend",
       [](S& xml) { ReplaceSpan(xml, "<c:legend>", "<c:plotVisOnly", ""); },
       {"</c:plotArea><c:plotVisOnly"},
       {"\"legend-visibility\" value=\"hide\""}},
      {"the legend at the bottom, smaller",
       [](S& xml) {
         ReplaceSpan(xml, "<c:legend>", "<c:plotVisOnly",
                     "<c:legend><c:legendPos val=\"b\"/><c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr sz=\"700\" "
                     "i=\"1\"/></a:pPr></a:p></c:txPr></c:legend>");
       },
       {"<c:legendPos val=\"b\"/>", "sz=\"700\" i=\"1\""},
       {"\"legend-position\" value=\"-4107\"", "\"legend-font-style\" value=\"Italic\""}},
      {"labels bold and red",
       [&](S& xml) { ReplaceSpan(xml, "<c:txPr>", "<c:dLblPos", label); },
       {"<a:defRPr b=\"1\" i=\"0\" sz=\"1400\">" + kRed + "<a:latin typeface=\"Georgia\"/>"},
       {"\"label-font-name\" value=\"Georgia\"", "\"label-font-style\" value=\"Bold\"",
        "\"label-font-color\" value=\"255\"", "<data-label show=\"values\"/>"}},
      {"no labels",
       [](S& xml) {
         while (xml.find("<c:dLbls>") != S::npos) ReplaceSpan(xml, "<c:dLbls>", "<c:cat>", "");
       },
       {},
       {"<data-labels/>"}},
      {"stacked bars",
       [](S& xml) {
         ReplaceFirst(xml, "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>",
                      "<c:barDir val=\"bar\"/><c:grouping val=\"stacked\"/>");
         ReplaceFirst(xml, "<c:gapWidth val=\"150\"/>", "<c:gapWidth val=\"40\"/><c:overlap val=\"100\"/>");
       },
       {"<c:barDir val=\"bar\"/><c:grouping val=\"stacked\"/>",
        "<c:gapWidth val=\"40\"/><c:overlap val=\"100\"/>"},
       {"type=\"bar\"", "<dynamic-attributes><attribute setting=\"stacked\"/></dynamic-attributes>"}},
      {"an axis title typed, another changed",
       [](S& xml) {
         InsertBefore(xml, "<c:numFmt formatCode=\"General\"",
                      "<c:title><c:tx><c:rich><a:bodyPr/><a:lstStyle/><a:p><a:r><a:rPr "
                      "lang=\"en-US\"/><a:t>Where</a:t></a:r></a:p></c:rich></c:tx></c:title>");
         ReplaceFirst(xml, "<a:t>Money</a:t>", "<a:t>Euros</a:t>");
       },
       {"<a:t>Where</a:t>", "<a:t>Euros</a:t>"},
       {"<axis type=\"label\" label=\"Where\" sticky=\"yes\"/>",
        "<axis type=\"value\" label=\"Euros\" sticky=\"yes\"/>"}},
      {"a number format",
       [](S& xml) {
         ReplaceSpan(xml, "<c:numFmt formatCode=\"0\" sourceLinked=\"1\"/>", "<c:majorTick",
                     "<c:numFmt formatCode=\"#,##0.0\" sourceLinked=\"0\"/>");
       },
       {"<c:numFmt formatCode=\"#,##0.0\" sourceLinked=\"1\"/>", "<c:formatCode>#,##0.0</c:formatCode>"},
       {"number-format=\"#,##0.0\""}},
      {"the plot area painted",
       [](S& xml) { ReplaceFirst(xml, "</c:plotArea>", kGradient + "</c:plotArea>"); },
       {kGradient + "</c:plotArea>"},
       {}},
      {"settings that drawing doesn't change",
       [&](S& xml) {
         ReplaceFirst(
             xml, "<c:layout/>",
             "<c:layout><c:manualLayout><c:layoutTarget val=\"inner\"/><c:xMode val=\"edge\"/><c:yMode "
             "val=\"edge\"/><c:x val=\"0.1\"/><c:y val=\"0.2\"/><c:w val=\"0.6\"/><c:h "
             "val=\"0.7\"/></c:manualLayout></c:layout>");
         ReplaceFirst(xml, "<c:gapWidth val=\"150\"/>", "<c:gapWidth val=\"33\"/><c:overlap val=\"-10\"/>");
         ReplaceFirst(xml, "<c:majorGridlines/>",
                      "<c:majorGridlines><c:spPr><a:ln><a:prstDash "
                      "val=\"dash\"/></a:ln></c:spPr></c:majorGridlines><c:minorGridlines/>");
         ReplaceSpan(xml, "<c:valAx>", "<c:delete",
                     "<c:valAx><c:axId val=\"111111112\"/><c:scaling><c:orientation val=\"minMax\"/><c:max "
                     "val=\"50\"/><c:min val=\"-5\"/></c:scaling>");
         InsertBefore(xml, "<c:crossAx val=\"111111112\"/>", tick);
         InsertBefore(xml, "</c:chartSpace>",
                      "<c:extLst><c:ext uri=\"{1}\"><x:y xmlns:x=\"urn:x\">kept</x:y></c:ext></c:extLst>");
       },
       {"<c:x val=\"0.1\"/><c:y val=\"0.2\"/><c:w val=\"0.6\"/><c:h val=\"0.7\"/>",
        "<c:gapWidth val=\"33\"/><c:overlap val=\"-10\"/>",
        "<c:majorGridlines><c:spPr><a:ln><a:prstDash "
        "val=\"dash\"/></a:ln></c:spPr></c:majorGridlines><c:minorGridlines/>",
        "<c:max val=\"50\"/><c:min val=\"-5\"/>", tick, "<x:y xmlns:x=\"urn:x\">kept</x:y>"},
       {}},
  };
  for (const HandEdit& hand : cases) {
    SCOPED_TRACE(hand.what);
    DrawChart(
        "<axes><axis type=\"value\" label=\"Money\" sticky=\"no\"/></axes><data-labels><data-label "
        "show=\"values\"/></data-labels>");
    EditChart(hand.edit);
    for (int i = 0; i < 2; ++i) RefreshAndReopen();
    const S chart = SavedPart(kChart), definition = StoredDefinition();
    for (const S& wanted : hand.chart)
      EXPECT_NE(chart.find(wanted), S::npos) << wanted << "\n  isn't in\n" << chart;
    for (const S& wanted : hand.definition)
      EXPECT_NE(definition.find(wanted), S::npos) << wanted << "\n  isn't in\n" << definition;
    EXPECT_NE(chart.find("VEX_ChartData!"), S::npos) << "the chart has its series";
    EXPECT_TRUE(Messages().empty()) << Messages()[0];
  }
}

TEST_F(HandEditsTest, TheMarksOfBucketsKeepTheFontOfTheirLabels) {
  Open(BucketBook(BucketDefinition()));
  RefreshAndReopen();
  const S labels = "<c:dLbls>", georgia = "<a:latin typeface=\"Georgia\"/>";
  EditChart([&](S& xml) {
    const auto marks = xml.rfind(labels);
    ASSERT_NE(marks, S::npos);
    S formatted = xml.substr(marks);
    ReplaceSpan(formatted, "<a:defRPr", "</a:pPr>",
                "<a:defRPr sz=\"1400\" b=\"0\" i=\"1\">" + kRed + georgia + "</a:defRPr>");
    xml = xml.substr(0, marks) + formatted;
  });
  for (int i = 0; i < 2; ++i) {
    RefreshAndReopen();
    const S chart = SavedPart(kChart), marks = chart.substr(chart.rfind(labels));
    EXPECT_NE(marks.find("sz=\"1400\""), S::npos) << marks;
    EXPECT_NE(marks.find(kRed), S::npos) << marks;
    EXPECT_NE(marks.find(georgia), S::npos) << marks;
    for (const auto& [property, value] :
         {std::pair{"name", "Georgia"}, {"size", "14"}, {"style", "Italic"}, {"color", "255"}}) {
      EXPECT_NE(StoredDefinition().find(S("<persist property=\"bucket-label-font-") + property +
                                        "\" value=\"" + value + "\"/>"),
                S::npos)
          << property << ' ' << StoredDefinition();
    }
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(HandEditsTest, ThreeDimensionsKeepTheirView) {
  DrawChart(Settings({"3D"}));
  EditChart([](S& xml) {
    ReplaceSpan(xml, "<c:view3D>", "<c:floor",
                "<c:view3D><c:rotX val=\"40\"/><c:rotY val=\"120\"/><c:rAngAx val=\"0\"/><c:perspective "
                "val=\"60\"/></c:view3D>");
    ReplaceSpan(xml, "<c:floor>", "<c:sideWall>",
                "<c:floor><c:thickness val=\"5\"/><c:spPr>" + kRed + "</c:spPr></c:floor>");
  });
  RefreshAndReopen();
  EXPECT_NE(SavedPart(kChart).find(
                "<c:view3D><c:rotX val=\"40\"/><c:rotY val=\"120\"/><c:rAngAx val=\"0\"/><c:perspective "
                "val=\"60\"/></c:view3D><c:floor><c:thickness val=\"5\"/><c:spPr>" +
                kRed),
            S::npos)
      << SavedPart(kChart);
}

TEST_F(HandEditsTest, AChartIsFoundOnTheSheetToWhichItWasMoved) {
  auto book = SalesBook({{"VEX_Chart1"}});
  PlainSheet other{"Other"};
  other.frames = {{"not ours", ""}};
  book.sheets.insert(book.sheets.begin() + 2, other);
  Open(book);
  RefreshAndReopen();
  Edit([](xlsx::Package& package) {
    for (const S part : {"/xl/drawings/drawing2.xml", "/xl/drawings/_rels/drawing2.xml.rels"}) {
      S second = part;
      ReplaceFirst(second, "drawing2", "drawing3");
      const S bytes = package.Read(part);
      package.Replace(part, package.Read(second));
      package.Replace(second, bytes);
    }
  });
  RefreshAndReopen();
  EXPECT_NE(StoredDefinition().find("chart-worksheet=\"Other\""), S::npos) << StoredDefinition();
  EXPECT_NE(SavedPart(kChart).find("VEX_ChartData!"), S::npos);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(HandEditsTest, ChartsWithoutMarkersAreIdentifiedByTheirData) {
  auto book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "bar"}});
  book.Sheet("Charts").frames.push_back({"", ""});  // A foreign chart, which never had an alternative text.
  Open(book);
  Refresh();
  const auto sheet = Book().FindWorksheet("Charts");
  const auto box = sheet->Shapes()->AddTextbox(1, 0, 0, 100, 50);
  box->SetAlternativeText("VEX_Chart2");
  box->TextFrame()->Characters()->SetText("Said of\nthe bars");
  SaveAndReopen();
  RefreshAndReopen();
  Edit([](xlsx::Package& package) {
    S xml = package.Read("/xl/drawings/drawing2.xml");
    for (const S marker : {"VEX_Chart1", "VEX_Chart2", "VEX_Chart2"})
      ReplaceFirst(xml, " descr=\"" + marker + "\"", "");
    package.Replace("/xl/drawings/drawing2.xml", xml);
    SetSavingProgram(package, "LibreOffice/7.4.7.2$Linux_X86_64");
  });
  RefreshAndReopen();
  std::vector<S> markers;
  const auto shapes = Book().FindWorksheet("Charts")->Shapes();
  for (int i = 1; i <= shapes->Count(); ++i) markers.push_back(shapes->Item(i)->AlternativeText());
  EXPECT_EQ(markers, (std::vector<S>{"VEX_Chart1", "VEX_Chart2", "", "VEX_Chart2"}));
  EXPECT_NE(Cells("VEX_ChartDefinitions", 3, 1, 3, 1).find("<comment>Said of"), S::npos);
  EXPECT_TRUE(Messages().empty());

  // A deleted chart isn't restored.
  shapes->Item(1)->Delete();
  Refresh();
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 2, 1, 3, 1).find("VEX_Chart1"), S::npos);
}

}  // namespace
}  // namespace plotsmith
