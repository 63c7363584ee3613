#include <functional>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Patterns.h"
#include "xlsx/base/Limits.h"
#include "xlsx/chart/rules/ChartTypes.h"

namespace plotsmith::xlsx {
namespace {

using excel::Chart;
using S = std::string;

using namespace test;

S Part(const S& chart, const S& behind = "") { return test::ChartPartXml(chart, behind); }

class ChartViewTest : public test::ChartTest {};

const S kAxes =
    "<c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart><c:catAx><c:axId val=\"1\"/><c:axPos val=\"b\"/>"
    "<c:crossAx val=\"2\"/></c:catAx><c:valAx><c:axId val=\"2\"/><c:axPos val=\"l\"/><c:crossAx "
    "val=\"1\"/></c:valAx>";

TEST_F(ChartViewTest, SettersPutElementsWhereTheSchemaWantsThem) {
  const S columns =
      "<c:plotArea><c:layout/><c:barChart><c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>" + kAxes +
      "</c:plotArea>";
  const S legend =
      "<c:legend><c:legendPos val=\"l\"/><c:legendEntry><c:idx "
      "val=\"0\"/></c:legendEntry><c:layout><c:manualLayout>"
      "<c:xMode val=\"edge\"/><c:x val=\"0.1\"/></c:manualLayout></c:layout></c:legend>";
  const struct {
    const char* what;
    S before;
    std::function<void(Chart&)> call;
    S after;  ///< A text that must exist.
    S gone;   ///< A text that must not exist.
  } cases[] = {
      {"a title comes first", Part(columns),
       [](Chart& c) {
         c.SetHasTitle(true);
         c.ChartTitle()->SetText("A & B\nC");
       },
       "<c:chart><c:title><c:tx><c:rich><a:bodyPr/><a:lstStyle/><a:p><a:r><a:rPr lang=\"en-US\"/>"
       "<a:t>A &amp; B</a:t></a:r></a:p><a:p><a:r><a:rPr lang=\"en-US\"/><a:t>C</a:t></a:r></a:p>"
       "</c:rich></c:tx><c:overlay val=\"0\"/></c:title><c:autoTitleDeleted val=\"0\"/><c:plotArea>",
       ""},
      {"a title keeps its format when its text changes",
       Part("<c:title><c:tx><c:rich><a:bodyPr rot=\"1\"/><a:p><a:pPr><a:defRPr "
            "sz=\"1800\"/></a:pPr><a:r><a:rPr b=\"1\"/><a:t>x</a:t></a:r>"
            "<a:r><a:t>y</a:t></a:r></a:p></c:rich></c:tx><c:layout/></c:title>" +
            columns),
       [](Chart& c) {
         c.SetHasTitle(true);
         c.ChartTitle()->SetText("New");
       },
       "<c:rich><a:bodyPr rot=\"1\"/><a:lstStyle/><a:p><a:pPr><a:defRPr sz=\"1800\"/></a:pPr><a:r><a:rPr "
       "b=\"1\"/><a:t>New</a:t></a:r></a:p></c:rich></c:tx><c:layout/>",
       "<a:t>y"},
      {"a title from a cell becomes a text with the same format",
       Part("<c:title><c:tx><c:strRef><c:f>Sheet1!$A$1</c:f></c:strRef></c:tx><c:txPr><a:bodyPr/><a:p>"
            "<a:pPr><a:defRPr sz=\"900\"/></a:pPr><a:endParaRPr lang=\"de\"/></a:p></c:txPr></c:title>" +
            columns),
       [](Chart& c) { c.ChartTitle()->SetText("T"); },
       "<c:title><c:tx><c:rich><a:bodyPr/><a:lstStyle/><a:p><a:pPr><a:defRPr sz=\"900\"/></a:pPr><a:r><a:rPr "
       "lang=\"en-US\"/><a:t>T</a:t></a:r></a:p></c:rich></c:tx></c:title>",
       "txPr"},
      {"no title and no automatic title", Part("<c:title/>" + columns),
       [](Chart& c) { c.SetHasTitle(false); }, "<c:chart><c:autoTitleDeleted val=\"1\"/><c:plotArea>",
       "<c:title"},
      {"a legend follows the plot area", Part(columns + "<c:plotVisOnly val=\"1\"/>"),
       [](Chart& c) { c.SetHasLegend(true); },
       "</c:plotArea><c:legend><c:legendPos val=\"r\"/><c:overlay val=\"0\"/></c:legend><c:plotVisOnly", ""},
      {"an existing legend is kept", Part(columns + legend), [](Chart& c) { c.SetHasLegend(true); }, legend,
       ""},
      {"a position replaces a layout", Part(columns + legend),
       [](Chart& c) { c.Legend()->SetPosition(-4107); },
       "<c:legend><c:legendPos val=\"b\"/><c:legendEntry><c:idx "
       "val=\"0\"/></c:legendEntry><c:layout/></c:legend>",
       ""},
      {"a manual position", Part(columns + "<c:legend><c:legendPos val=\"r\"/></c:legend>"),
       [](Chart& c) {
         c.Legend()->SetTop(27);
         c.Legend()->SetLeft(96);
       },
       "<c:legend><c:legendPos val=\"r\"/><c:layout><c:manualLayout><c:xMode val=\"edge\"/>"
       "<c:yMode val=\"edge\"/><c:x val=\"0.25\"/><c:y val=\"0.1\"/></c:manualLayout></c:layout></c:legend>",
       ""},
      {"a legend's font", Part(columns + "<c:legend><c:legendPos val=\"r\"/><c:extLst/></c:legend>"),
       [](Chart& c) {
         const auto f = c.Legend()->Font();
         f->SetColor("255");
         f->SetFontStyle("Bold Italic");
         f->SetSize(8.5);
         f->SetName("Arial");
       },
       "<c:legendPos val=\"r\"/><c:txPr><a:bodyPr/><a:lstStyle/><a:p><a:pPr><a:defRPr b=\"1\" i=\"1\" "
       "sz=\"850\"><a:solidFill><a:srgbClr val=\"FF0000\"/>"
       "</a:solidFill><a:latin typeface=\"Arial\"/><a:cs "
       "typeface=\"Arial\"/></a:defRPr></a:pPr><a:endParaRPr lang=\"en-US\"/></a:p></c:txPr><c:extLst/>",
       ""},
      {"an axis title", Part(columns),
       [](Chart& c) {
         const auto a = c.Axes(2, 1);
         a->SetHasTitle(true);
         a->AxisTitle()->SetText("V");
         a->AxisTitle()->SetOrientation(-4171);
       },
       "<c:valAx><c:axId val=\"2\"/><c:axPos val=\"l\"/><c:title><c:tx><c:rich><a:bodyPr rot=\"-5400000\" "
       "vert=\"horz\"/><a:lstStyle/><a:p><a:r><a:rPr lang=\"en-US\"/>"
       "<a:t>V</a:t></a:r></a:p></c:rich></c:tx><c:overlay val=\"0\"/></c:title><c:crossAx",
       ""},
      {"a hidden axis is shown again",
       Part("<c:plotArea><c:barChart>" +
            runtime::Replace(kAxes, "<c:axPos val=\"b\"/>", "<c:delete val=\"1\"/><c:axPos val=\"b\"/>") +
            "</c:plotArea>"),
       [](Chart& c) {
         EXPECT_FALSE(c.HasAxis(1));
         EXPECT_TRUE(c.HasAxis(2));
         c.SetHasAxis(1, true);
       },
       "<c:axId val=\"1\"/><c:delete val=\"0\"/><c:axPos", ""},
      {"the labels of an axis follow the data", Part(columns),
       [](Chart& c) { c.Axes(2, 1)->TickLabels()->SetNumberFormatLinked(true); },
       "<c:axPos val=\"l\"/><c:numFmt formatCode=\"General\" sourceLinked=\"1\"/><c:crossAx", ""},
      {"a fill replaces another",
       Part(columns, "<c:spPr><a:gradFill><a:gsLst/></a:gradFill><a:ln w=\"1\"/></c:spPr><c:txPr/>"),
       [](Chart& c) { c.ChartArea()->Interior()->SetColorIndex(3); },
       "<c:spPr><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:ln w=\"1\"/></c:spPr>", "gradFill"},
      {"a plot area without fill and line", Part(columns),
       [](Chart& c) {
         c.PlotArea()->Interior()->SetColorIndex(-4142);
         c.PlotArea()->Border()->SetLineStyle(0);
       },
       "</c:valAx><c:spPr><a:noFill/><a:ln><a:noFill/></a:ln></c:spPr></c:plotArea>", ""},
      {"a writer's own prefixes", runtime::Replace(runtime::Replace(Part(columns), "c:", ""), ":c=", "="),
       [](Chart& c) { c.SetHasLegend(true); },
       "</plotArea><legend><legendPos val=\"r\"/><overlay val=\"0\"/></legend></chart>", ""},
      {"unknown elements stay in place",
       Part("<?pi?><!--c--><x:y xmlns:x=\"u\" v='\"'>&#13;&lt;<![CDATA[<]]></x:y>" + columns),
       [](Chart& c) { c.SetHasLegend(true); },
       "<c:chart><?pi?><!--c--><x:y xmlns:x=\"u\" v=\"&quot;\">&#13;&lt;<![CDATA[<]]></x:y><c:plotArea>", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const S after = After(c.before, c.call);
    EXPECT_NE(after.find(c.after), S::npos) << "wanted " << c.after << "\nin " << after;
    if (!c.gone.empty()) {
      EXPECT_EQ(after.find(c.gone), S::npos) << after;
    }
  }
}

TEST_F(ChartViewTest, ASeriesShowsItsCells) {
  const S after = After(Part("<c:plotArea/>"), [&](Chart& chart) {
    chart.SetChartType(57);
    const auto series = chart.SeriesCollection()->NewSeries();
    series->SetName("=Sheet1!$C$1");
    series->SetXValues("=sheet1!R2C1:R5C1");
    series->SetValues("=Sheet1!R2C3:R5C3");
    const auto literal = chart.SeriesCollection()->NewSeries();
    literal->SetName("Literally");
    literal->SetXValues("=Sheet1!$D$2:$D$3");
    for (const char* bad : {"=Nowhere!R1C1", "Sheet1!R1C1", "=Sheet1!", "=Sheet1!R1C1:R2097152C1"}) {
      ExpectError1004([&] { series->SetValues(bad); });
    }
    ExpectError1004([&] { series->SetName(runtime::kNull); });
    for (const auto& [formula, name] :
         {std::pair{"=\"\"", ""}, {"=\"=x\"", "=x"}, {"=\"a \"\"b\"\"\"", "a \"b\""}}) {
      const auto quoted = chart.SeriesCollection()->NewSeries();
      quoted->SetName(formula);
      EXPECT_EQ(quoted->Name(), name);
      for (const char* bad : {"=x", "=\"", "=\"x", "=\"a\"b\"", "=\"a\"\""}) {
        ExpectError1004([&] { quoted->SetName(bad); });
      }
      EXPECT_EQ(quoted->Name(), name);
      quoted->Delete();
    }
  });
  EXPECT_EQ(Between(after, "<c:ser>", "<c:ser><c:idx val=\"1\"/>"),
            "<c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:tx><c:strRef><c:f>Sheet1!$C$1</c:f>"
            "<c:strCache><c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>Amount</c:v></c:pt>"
            "</c:strCache></c:strRef></c:tx><c:invertIfNegative val=\"0\"/><c:cat>"
            "<c:strRef><c:f>Sheet1!$A$2:$A$5</c:f><c:strCache><c:ptCount val=\"4\"/><c:pt idx=\"0\">"
            "<c:v>East</c:v></c:pt><c:pt idx=\"1\"><c:v>West</c:v></c:pt><c:pt idx=\"2\"><c:v>East"
            "</c:v></c:pt><c:pt idx=\"3\"><c:v>east</c:v></c:pt></c:strCache></c:strRef></c:cat>"
            "<c:val><c:numRef><c:f>Sheet1!$C$2:$C$5</c:f><c:numCache><c:formatCode>General"
            "</c:formatCode><c:ptCount val=\"4\"/><c:pt idx=\"0\"><c:v>10</c:v></c:pt><c:pt idx=\"1\">"
            "<c:v>5</c:v></c:pt><c:pt idx=\"2\"><c:v>7</c:v></c:pt><c:pt idx=\"3\"><c:v>1</c:v>"
            "</c:pt></c:numCache></c:numRef></c:val></c:ser>");
  EXPECT_NE(after.find("<c:tx><c:v>Literally</c:v></c:tx><c:invertIfNegative "
                       "val=\"0\"/><c:cat><c:numRef><c:f>Sheet1!$D$2:$D$3</c:f>"),
            S::npos)
      << "categories without a text are numbers";
}

TEST_F(ChartViewTest, IndicesOfSeriesHaveTheLimitsOfTheirType) {
  After(Part("<c:plotArea><c:barChart><c:ser><c:idx val=\"9223372036854775807\"/><c:order "
             "val=\"9223372036854775807\"/></c:ser></c:barChart></c:plotArea>"),
        [](Chart& chart) {
          EXPECT_EQ(chart.SeriesCollection()->Item(1)->Name(), "Series4294967296");
          EXPECT_EQ(chart.SeriesCollection()->Item(1)->Formula(), "=SERIES(,,,4294967296)");
        });
}

TEST_F(ChartViewTest, AnEmptyChartShowsItsAxesWithTheFirstSeries) {
  const S hidden = runtime::Replace(kAxes, "<c:axPos", "<c:delete val=\"1\"/><c:axPos"),
          series = "<c:ser><c:idx val=\"0\"/></c:ser>";
  const auto chart = [&](const S& inGroup, const S& axes) {
    return Part("<c:plotArea><c:barChart><c:barDir val=\"bar\"/>" + inGroup + axes + "</c:plotArea>");
  };
  const auto draw = [](Chart& c) {
    while (c.SeriesCollection()->Count() > 0) c.SeriesCollection()->Item(1)->Delete();
    c.SetChartType(57);
    c.SeriesCollection()->NewSeries();
    c.SetChartType(51);
  };
  const S one = hidden.substr(0, hidden.rfind("<c:delete")) + hidden.substr(hidden.rfind("<c:axPos"));
  EXPECT_EQ(CountOf(After(chart("", hidden), draw), "<c:delete val=\"1\"/>"), 0u);
  EXPECT_EQ(CountOf(After(chart("", one), draw), "<c:delete val=\"1\"/>"), 1u) << "somebody's choice";
  EXPECT_EQ(CountOf(After(chart(series, hidden), draw), "<c:delete val=\"1\"/>"), 2u) << "likewise";
}

TEST_F(ChartViewTest, AFormerTypeIsRestored) {
  // The refresh first draws every chart as clustered bars. Settings of the original type must survive this.
  const S area =
      "<c:view3D><c:rotX val=\"40\"/></c:view3D><c:floor><c:thickness val=\"5\"/></c:floor>"
      "<c:plotArea><c:area3DChart><c:grouping val=\"standard\"/><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/>"
      "</c:ser><c:dropLines/><c:gapDepth val=\"7\"/><c:axId val=\"1\"/><c:axId val=\"2\"/><c:axId val=\"3\"/>"
      "</c:area3DChart><c:catAx><c:axId val=\"1\"/><c:axPos val=\"t\"/><c:crossAx val=\"2\"/>"
      "<c:extLst/></c:catAx><c:valAx><c:axId val=\"2\"/><c:scaling><c:max val=\"50\"/></c:scaling>"
      "<c:axPos val=\"r\"/><c:crossAx val=\"1\"/><c:crossBetween val=\"between\"/></c:valAx><c:serAx>"
      "<c:axId val=\"3\"/><c:delete val=\"1\"/><c:axPos val=\"b\"/><c:crossAx val=\"1\"/>"
      "</c:serAx></c:plotArea>";
  const S through = After(Part(area), [&](Chart& chart) {
    chart.SeriesCollection()->Item(1)->Delete();
    chart.SetChartType(57);
    chart.SeriesCollection()->NewSeries();
    chart.SetChartType(-4098);
  });
  for (const char* kept :
       {"<c:rotX val=\"40\"/>", "<c:floor><c:thickness val=\"5\"/></c:floor>", "<c:dropLines/>",
        "<c:gapDepth val=\"7\"/>", "<c:axPos val=\"t\"/>", "<c:axPos val=\"r\"/>", "<c:max val=\"50\"/>",
        "<c:crossBetween val=\"between\"/>", "<c:delete val=\"1\"/><c:axPos val=\"b\"/>", "<c:extLst/>"}) {
    EXPECT_NE(through.find(kept), S::npos) << kept << "\n" << through;
  }
  for (const char* gone : {"barChart", "invertIfNegative", "gapWidth"})
    EXPECT_EQ(through.find(gone), S::npos) << gone;

  const S bars =
      "<c:plotArea><c:barChart><c:barDir val=\"bar\"/><c:grouping val=\"clustered\"/><c:gapWidth "
      "val=\"33\"/><c:overlap val=\"-20\"/>" +
      kAxes + "</c:plotArea>";
  const S same = After(Part(bars), [](Chart& chart) { chart.SetChartType(57); });
  EXPECT_NE(same.find("<c:gapWidth val=\"33\"/><c:overlap val=\"-20\"/>"), S::npos);
  const S stacked = After(Part(bars), [](Chart& chart) { chart.SetChartType(52); });
  EXPECT_NE(stacked.find("<c:gapWidth val=\"33\"/><c:overlap val=\"100\"/>"), S::npos);
}

TEST_F(ChartViewTest, EveryTypeIsBuiltAsExcelBuildsIt) {
  for (const ChartTypeEntry& type : kChartTypes) {
    SCOPED_TRACE(type.number);
    const S after = After(Part("<c:plotArea><c:layout/></c:plotArea>"), [&](Chart& chart) {
      chart.SetChartType(57);
      const auto series = chart.SeriesCollection()->NewSeries();
      series->ApplyDataLabels(2);
      series->DataLabels()->SetPosition(-4108);
      chart.SetChartType(type.number);
    });
    EXPECT_EQ(test::ChartComplaints(after), "") << after;
    const S group = Between(after, "<c:" + S(type.element) + ">", "</c:" + S(type.element) + ">");
    EXPECT_EQ(group.find("<c:grouping val=\"" + S(type.grouping) + "\"/>") != S::npos,
              !type.grouping.empty());
    EXPECT_EQ(group.find("barDir val=\"" + S(type.direction) + "\"") != S::npos, !type.direction.empty());
    EXPECT_EQ(group.find("<c:overlap val=\"100\"/>") != S::npos,
              type.element == "barChart" && type.IsStacked());
    EXPECT_EQ(group.find("dLblPos") != S::npos, (!type.Is3D() && !type.IsArea()) || type.IsPie())
        << "a position is kept if Excel allows it";
    EXPECT_EQ(after.find("<c:view3D>") != S::npos, type.Is3D());
    EXPECT_EQ(after.find("<c:serAx>") != S::npos, type.HasDepthAxis());
    EXPECT_EQ(after.find("<c:catAx>") != S::npos, type.HasAxes() && !type.HasXValues());
    EXPECT_EQ(Between(after, "<c:catAx>", "</c:catAx>").find("<c:axPos val=\"l\"/>") != S::npos,
              type.IsHorizontal());
    EXPECT_EQ(after.find("<c:crossBetween val=\"midCat\"/>") != S::npos, type.IsArea() || type.HasXValues());
    EXPECT_EQ(group.find("<c:varyColors val=\"1\"/>") != S::npos, type.IsPie());
  }
}

TEST_F(ChartViewTest, SeriesOfSeveralGroupsAreCombined) {
  const S mixed =
      "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:ser><c:idx val=\"0\"/><c:order val=\"1\"/>"
      "</c:ser><c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart><c:lineChart><c:ser><c:idx val=\"1\"/>"
      "<c:order val=\"0\"/><c:marker/><c:smooth val=\"1\"/></c:ser><c:axId val=\"3\"/><c:axId val=\"4\"/>"
      "</c:lineChart><c:catAx><c:axId val=\"1\"/></c:catAx><c:valAx><c:axId val=\"2\"/></c:valAx>"
      "<c:catAx><c:axId val=\"3\"/></c:catAx><c:valAx><c:axId val=\"4\"/></c:valAx></c:plotArea>";
  const S after = After(Part(mixed), [](Chart& chart) {
    EXPECT_EQ(chart.SeriesCollection()->Count(), 2);
    chart.SetChartType(57);
  });
  EXPECT_EQ(after.find("lineChart"), S::npos);
  EXPECT_EQ(after.find("<c:smooth"), S::npos);
  EXPECT_EQ(after.find("<c:axId val=\"3\"/>"), S::npos);
  EXPECT_LT(after.find("<c:order val=\"0\"/>"), after.find("<c:order val=\"1\"/>")) << after;
}

TEST_F(ChartViewTest, MissingPartsOfAChartAreError1004) {
  After(Part("<c:plotArea/>"), [](Chart& chart) {
    for (const std::function<void()>& call : std::initializer_list<std::function<void()>>{
             [&] { chart.ChartTitle(); }, [&] { chart.Legend(); }, [&] { chart.Axes(1, 1); },
             [&] { chart.SetHasAxis(1, true); }, [&] { chart.SetChartType(-4111); },
             [&] { chart.SeriesCollection()->Item(1); }, [&] { chart.ChartArea()->Fill()->Patterned(99); }}) {
      ExpectError1004(call);
    }
    EXPECT_FALSE(chart.HasAxis(1));
    chart.SetHasLegend(true);
    ExpectError1004([&] { chart.Legend()->SetTop(-1e50); });
    ExpectError1004([&] { chart.Legend()->SetPosition(7); });
    ExpectError1004([&] { chart.Legend()->Font()->SetSize(0.0); });
  });
  // A chart that can't be read doesn't affect other charts.
  const auto barred = [](std::size_t groups) {
    S plot = "<c:plotArea>";
    for (std::size_t i = 0; i < groups; ++i)
      plot += "<c:barChart><c:ser/><c:ser/></c:barChart><c:lineChart/>";
    return Part(plot + "</c:plotArea>");
  };
  for (const S& part : {S("<c:chartSpace><c:chart>"), barred(limits::kSeries / 3 + 1)}) {
    After(part, [](Chart& chart) { ExpectError1004([&] { chart.SetHasTitle(true); }); });
    EXPECT_EQ(SavedPart("/xl/charts/chart1.xml"), part);
  }
  EXPECT_NO_THROW(After(barred(limits::kSeries / 3), [](Chart& chart) { chart.SetHasTitle(true); }));
  EXPECT_FALSE(Book().Damage());
}

}  // namespace
}  // namespace plotsmith::xlsx
