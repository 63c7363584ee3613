#include <functional>
#include <locale>
#include <sstream>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Patterns.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using excel::Chart;
using excel::Series;
using namespace test;
using test::DeleteSeries;  // rather than the one of the host
using S = std::string;

S Part(const S& chart) { return test::ChartPartXml(chart); }

const S kNothing = Part("<c:plotArea><c:layout/></c:plotArea>");
const S kLegend = "<c:legend><c:legendPos val=\"r\"/></c:legend>";

class ChartPropertiesTest : public test::ChartTest {};

TEST_F(ChartPropertiesTest, AnAutomaticColourCanBeReadAtOnceAndSetOnAnother) {
  const S accents = "BD814F 4D50C0 59BB9B A26480 C6AC4B 4696F7 754D2C ";
  const S grey = "<c:style val=\"1\"/>", violet = "<c:style val=\"6\"/>";
  const S newer =
      "<mc:AlternateContent "
      "xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\"><mc:Choice "
      "Requires=\"c14\"><c14:style xmlns:c14=\"http://schemas.microsoft.com/office/drawing/2007/8/2/chart\" "
      "val=\"102\"/></mc:Choice></mc:AlternateContent>";
  struct Case {
    S style;
    S seven;  ///< the first seven colours, blue, green and red
  };
  for (const Case& c : {Case{"", accents}, Case{newer, accents}, Case{"<c:style val=\"49\"/>", accents},
                        Case{grey, "1D1D1D 737373 383838 131313 4C4C4C B2B2B2 1D1D1D "},
                        Case{violet, "A26480 B8889E C39AAC C9A5B5 CDACBB D0B1BF D3B5C3 "}}) {
    SCOPED_TRACE(c.style);
    After(runtime::Replace(kNothing, "<c:chart>", c.style + "<c:chart>"), [&](Chart& chart) {
      chart.SetChartType(excel::xlBubble);
      std::ostringstream seen;
      seen.imbue(std::locale::classic());
      for (int i = 1; i <= 7; ++i) {
        const auto interior = chart.SeriesCollection()->NewSeries()->Interior();
        seen << std::uppercase << std::hex << interior->Color() << " ";
      }
      EXPECT_EQ(seen.str(), c.seven);
    });
  }
  const S after = Sound(kNothing, [](Chart& chart) {
    chart.SetChartType(excel::xlBubble);
    const auto from = AddBubble(chart, 2)->Interior(), to = AddBubble(chart, 3)->Interior();
    const std::int32_t color = from->Color(), index = from->ColorIndex(), pattern = from->Pattern(),
                       lines = from->PatternColor(), lineIndex = from->PatternColorIndex();
    EXPECT_EQ(index, excel::xlColorIndexAutomatic);
    to->SetPattern(14);
    EXPECT_EQ(to->Pattern(), 14);
    to->SetPattern(pattern);
    to->SetPatternColorIndex(lineIndex);
    to->SetPatternColor(lines);
    to->SetColorIndex(index);
    to->SetColor(color);
    EXPECT_EQ(to->Color(), color);
    EXPECT_EQ(to->Pattern(), 1);
    ExpectError1004([&] { to->SetColor(-1); });
    ExpectError1004([&] { to->SetPattern(77); });
  });
  EXPECT_EQ(CountOf(after, "<c:spPr>"), 1u);
  EXPECT_TRUE(Has(after,
                  "<c:idx val=\"1\"/><c:order val=\"1\"/><c:tx><c:v>B3</c:v></c:tx><c:spPr><a:solidFill>"
                  "<a:srgbClr val=\"4F81BD\"/></a:solidFill></c:spPr>"))
      << after;
}

TEST_F(ChartPropertiesTest, PropertiesOfSeriesLabelsAndAxesAreWrittenInPlace) {
  struct Case {
    const char* what;
    std::int32_t type;
    std::function<void(Chart&, Series&)> call;
    S after, gone;
  };
  const S lineEnd = "</a:ln></c:spPr>";
  const Case cases[] = {
      {"the colour becomes the background of a pattern", 15,
       [](Chart&, Series& s) {
         s.Interior()->SetColor(0xFF);
         s.Interior()->SetPattern(14);
         s.Interior()->SetPatternColorIndex(5);
         EXPECT_EQ(s.Interior()->PatternColor(), 0xFF0000);
         EXPECT_EQ(s.Interior()->ColorIndex(), 3);
       },
       "<a:pattFill prst=\"ltUpDiag\"><a:fgClr><a:srgbClr val=\"0000FF\"/></a:fgClr><a:bgClr><a:srgbClr "
       "val=\"FF0000\"/></a:bgClr></a:pattFill>",
       ""},
      {"an automatic index removes the fill and keeps the outline", 51,
       [](Chart&, Series& s) {
         s.Border()->SetColor(0);
         s.Interior()->SetColor(0xFF);
         s.Interior()->SetColorIndex(-4105);
       },
       "<c:spPr><a:ln><a:solidFill><a:srgbClr val=\"000000\"/></a:solidFill></a:ln></c:spPr>", "FF0000"},
      {"a hairline shows a hidden line", 15,
       [](Chart&, Series& s) {
         s.Border()->SetLineStyle(-4142);
         s.Border()->SetWeight(1);
       },
       "<c:spPr><a:ln w=\"3175\"/></c:spPr>", "noFill"},
      {"coloured dashes", 52,
       [](Chart&, Series& s) {
         s.Border()->SetLineStyle(-4115);
         s.Border()->SetColor(0xFF);
       },
       "<a:ln><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:prstDash val=\"dash\"/>" + lineEnd,
       ""},
      {"a label with its own text repeats the format of the others", 15,
       [](Chart&, Series& s) {
         s.SetHasDataLabels(true);
         const auto labels = s.DataLabels();
         labels->Font()->SetSize(9.0);
         labels->Font()->SetColor("255");
         labels->SetHorizontalAlignment(-4108);
         labels->SetVerticalAlignment(-4108);
         labels->SetOrientation(-4128);
         EXPECT_EQ(labels->Count(), 4);
         labels->Item(2)->SetText("A & B");
         labels->SetPosition(-4108);
         ExpectError1004([&] { labels->Item(5); });
         ExpectError1004([&] { labels->SetPosition(2); });
       },
       "<c:dLbls><c:dLbl><c:idx val=\"1\"/><c:layout/><c:tx><c:rich><a:bodyPr anchor=\"ctr\" rot=\"0\" "
       "vert=\"horz\"/><a:lstStyle/><a:p><a:pPr algn=\"ctr\"><a:defRPr sz=\"900\"><a:solidFill><a:srgbClr "
       "val=\"FF0000\"/></a:solidFill></a:defRPr></a:pPr><a:r><a:rPr lang=\"en-US\" sz=\"900\"><a:solidFill>"
       "<a:srgbClr val=\"FF0000\"/></a:solidFill></a:rPr><a:t>A &amp; B</a:t></a:r></a:p></c:rich></c:tx>"
       "<c:dLblPos val=\"ctr\"/><c:showLegendKey val=\"0\"/><c:showVal val=\"1\"/><c:showCatName val=\"0\"/>"
       "<c:showSerName val=\"0\"/><c:showPercent val=\"0\"/><c:showBubbleSize val=\"0\"/></c:dLbl>",
       ""},
      {"labels of points are in order and follow the settings of the others", 51,
       [](Chart&, Series& s) {
         s.SetHasDataLabels(true);
         for (const int point : {3, 1, 2, 1}) s.DataLabels()->Item(point)->SetText(std::to_string(point));
         s.DataLabels()->Font()->SetFontStyle("Bold");
         s.DataLabels()->SetOrientation(45);
       },
       "<a:bodyPr rot=\"-2700000\" vert=\"horz\"/><a:lstStyle/><a:p><a:pPr><a:defRPr b=\"1\" "
       "i=\"0\"/></a:pPr><a:r><a:rPr lang=\"en-US\" b=\"1\" i=\"0\"/><a:t>3</a:t>",
       "<c:idx val=\"3\"/>"},
      {"no labels although the group has some", 51,
       [](Chart&, Series& s) {
         s.SetHasDataLabels(true);
         s.SetHasDataLabels(false);
         EXPECT_FALSE(s.DataLabels());
       },
       "<c:invertIfNegative val=\"0\"/><c:cat>", "dLbls"},
      {"a value axis", 15,
       [](Chart& c, Series&) {
         const auto axis = c.Axes(1, 1);
         axis->SetHasMajorGridlines(true);
         axis->SetHasMinorGridlines(true);
         axis->SetHasMinorGridlines(false);
         axis->SetMinimumScale(-7);
         axis->SetMaximumScale(22);
         axis->SetMajorUnit(14.5);
         axis->SetScaleType(-4133);
         axis->SetScaleType(-4132);
         axis->SetReversePlotOrder(true);
         axis->SetReversePlotOrder(false);
         axis->SetDisplayUnit(-3);
         axis->SetTickLabelPosition(-4134);
         axis->Border()->SetLineStyle(-4142);
         ExpectError1004([&] { axis->SetMajorUnit(0); });
         ExpectError1004([&] { axis->SetCrosses(-4114); });
       },
       "<c:scaling><c:orientation val=\"minMax\"/><c:max val=\"22\"/><c:min val=\"-7\"/>"
       "</c:scaling><c:delete val=\"0\"/><c:axPos val=\"b\"/><c:majorGridlines/>"
       "<c:numFmt formatCode=\"General\" sourceLinked=\"1\"/><c:majorTickMark val=\"out\"/><c:minorTickMark "
       "val=\"none\"/><c:tickLblPos val=\"low\"/><c:spPr><a:ln><a:noFill/></a:ln></c:spPr>"
       "<c:crossAx val=\"111111112\"/><c:crosses val=\"autoZero\"/><c:crossBetween val=\"midCat\"/>"
       "<c:majorUnit val=\"14.5\"/><c:dispUnits><c:builtInUnit val=\"thousands\"/><c:dispUnitsLbl/>"
       "</c:dispUnits></c:valAx>",
       "logBase"},
      {"the crossing of an axis is stored in the other axis", 51,
       [](Chart& c, Series&) { c.Axes(1, 1)->SetCrosses(2); },
       "<c:crossAx val=\"111111111\"/><c:crosses val=\"max\"/><c:crossBetween val=\"between\"/></c:valAx>",
       ""},
      {"an automatic unit", 51,
       [](Chart& c, Series&) {
         const auto axis = c.Axes(2, 1);
         EXPECT_EQ(axis->MaximumScale(), 12);
         axis->SetMajorUnitIsAuto(false);
         EXPECT_EQ(axis->MinimumScale(), 0);
       },
       "<c:crossBetween val=\"between\"/><c:majorUnit val=\"2\"/>", ""},
      {"a category axis has no scale", 51,
       [](Chart& c, Series& s) {
         const auto axis = c.Axes(1, 1);
         ExpectError1004([&] { axis->MaximumScale(); });
         ExpectError1004([&] { axis->SetMinimumScale(0); });
         ExpectError1004([&] { axis->SetMajorUnit(1); });
         ExpectError1004([&] { axis->SetDisplayUnit(-3); });
         ExpectError1004([&] { s.SetMarkerSize(5); });
       },
       "", "majorUnit"},
      {"markers of a line", 65,
       [](Chart&, Series& s) {
         s.SetMarkerStyle(1);
         ExpectError1004([&] { s.SetMarkerSize(1); });
         ExpectError1004([&] { s.SetMarkerSize(73); });
         ExpectError1004([&] { s.SetMarkerStyle(77); });
       },
       "<c:marker><c:symbol val=\"square\"/></c:marker>", "size"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const S after = Sound(kNothing, [&](Chart& chart) {
      const auto series = AddOfType(chart, c.type);
      c.call(chart, *series);
      EXPECT_EQ(series->Values(), (std::vector<runtime::Variant>{10.0, 5.0, 7.0, 1.0}));
    });
    EXPECT_TRUE(Has(after, c.after)) << "wanted " << c.after << "\nin " << after;
    if (!c.gone.empty()) {
      EXPECT_FALSE(Has(after, c.gone)) << after;
    }
  }
}

TEST_F(ChartPropertiesTest, PresetColoursHaveTheirValues) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"black", 0},          {"white", 0xFFFFFF},   {"red", 0x0000FF},      {"green", 0x008000},
      {"blue", 0xFF0000},    {"yellow", 0x00FFFF},  {"cyan", 0xFFFF00},     {"aqua", 0xFFFF00},
      {"magenta", 0xFF00FF}, {"fuchsia", 0xFF00FF}, {"gray", 0x808080},     {"grey", 0x808080},
      {"silver", 0xC0C0C0},  {"maroon", 0x000080},  {"navy", 0x800000},     {"olive", 0x008080},
      {"purple", 0x800080},  {"teal", 0x808000},    {"lime", 0x00FF00},     {"orange", 0x00A5FF},
      {"brown", 0x2A2AA5},   {"pink", 0xCBC0FF},    {"darkBlue", 0x8B0000}, {"darkRed", 0x00008B}};
  for (const auto& [name, color] : cases) {
    const S text = S("<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr><a:solidFill><a:prstClr val=\"") + name +
                   "\"/></a:solidFill></a:defRPr></a:pPr></a:p></c:txPr>";
    const auto chart = OpenChart(Part("<c:plotArea/><c:legend>" + text + "</c:legend>"));
    EXPECT_EQ(chart->Legend()->Font()->Color(), runtime::Variant(color)) << name;
  }
}

TEST_F(ChartPropertiesTest, ExistingElementsAreChangedInPlace) {
  const auto bars = [](const S& labels, const S& title) {
    return Part(
        "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/>" +
        labels +
        "<c:val><c:numLit><c:ptCount val=\"3\"/></c:numLit></c:val></c:ser><c:axId val=\"1\"/><c:axId "
        "val=\"2\"/></c:barChart><c:catAx><c:axId val=\"1\"/></c:catAx><c:valAx><c:axId val=\"2\"/>" +
        title + "</c:valAx></c:plotArea>");
  };
  const auto legend = [&](const S& layout) {
    return runtime::Replace(bars("", ""), "</c:chart>",
                            "<c:legend><c:layout>" + layout + "</c:layout></c:legend></c:chart>");
  };
  const auto label = [](const S& inside, const S& shows) {
    return "<c:dLbl><c:idx val=\"1\"/>" + inside + "<c:showVal val=\"0\"/><c:showSerName val=\"" + shows +
           "\"/></c:dLbl>";
  };
  const auto all = [](const S& points) { return "<c:dLbls>" + points + "<c:showVal val=\"1\"/></c:dLbls>"; };
  const S text =
      "<c:tx><c:rich><a:bodyPr/><a:lstStyle/><a:p><a:r><a:rPr "
      "lang=\"en-US\"/><a:t>Two</a:t></a:r></a:p></c:rich></c:tx>";
  const S cell = "<c:tx><c:strRef><c:f>Sheet1!$A$1</c:f></c:strRef></c:tx>";
  const struct {
    const char* what;
    S before;
    std::function<void(Chart&)> call;
    S after;
  } cases[] = {
      {"the label of a point keeps its contents", bars(all(label("", "1")), ""),
       [](Chart& c) { c.SeriesCollection()->Item(1)->DataLabels()->Item(2)->SetText("Two"); },
       bars(all(label(text, "1")), "")},
      {"a position precedes extensions", legend("<c:extLst/>"), [](Chart& c) { c.Legend()->SetLeft(96); },
       legend("<c:manualLayout><c:xMode val=\"edge\"/><c:x val=\"0.25\"/></c:manualLayout><c:extLst/>")},
      {"an axis title from a cell is rotated", bars("", "<c:title>" + cell + "</c:title>"),
       [](Chart& c) { c.Axes(excel::xlValue, 1)->AxisTitle()->SetOrientation(-4171); },
       bars("",
            "<c:title>" + cell + "<c:txPr><a:bodyPr rot=\"-5400000\" vert=\"horz\"/></c:txPr></c:title>")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(After(c.before, c.call), c.after);
  }
}

TEST_F(ChartPropertiesTest, AChartCachesOnlyAsManyCellsAsItCanContain) {
  const S after = Sound(kNothing, [](Chart& chart) {
    for (int i = 0; i < 2; ++i)
      AddOfType(chart, excel::xlColumnClustered)->SetValues("=Sheet1!R1C1:R1048576C2");
  });
  EXPECT_EQ(test::CountOf(after, "<c:f>Sheet1!$A:$B</c:f>"), 2U) << after;
  EXPECT_EQ(test::CountOf(after, "<c:ptCount val=\"2097152\"/>"), 1U);
}

TEST_F(ChartPropertiesTest, LegendEntriesAreDeletedWithTheirSeries) {
  const auto draw = [](Chart& chart) {
    DeleteSeries(chart);
    chart.SetChartType(excel::xlBubble);
    for (const int row : {2, 3, 4, 5}) {
      AddBubble(chart, row);
      const auto entries = chart.Legend()->LegendEntries();
      if (row == 3 || row == 5) entries->Item(entries->Count())->Delete();
    }
    EXPECT_EQ(chart.Legend()->LegendEntries()->Count(), 2);
    ExpectError1004([&] { chart.Legend()->LegendEntries()->Item(3); });
  };
  const S wanted =
      "<c:legend><c:legendPos val=\"r\"/><c:legendEntry><c:idx val=\"1\"/><c:delete val=\"1\"/>"
      "</c:legendEntry><c:legendEntry><c:idx val=\"3\"/><c:delete val=\"1\"/></c:legendEntry></c:legend>";
  const S stale = runtime::Replace(kLegend, "</c:legend>",
                                   "<c:legendEntry><c:idx val=\"2\"/><c:delete "
                                   "val=\"1\"/></c:legendEntry></c:legend>");
  S after = Sound(Part("<c:plotArea/>" + stale), draw);
  EXPECT_TRUE(Has(after, wanted)) << after;
  after = Sound(after, draw);
  EXPECT_TRUE(Has(after, wanted)) << "the second time the same\n" << after;
  after = Sound(after, [](Chart& chart) {
    chart.SeriesCollection()->Item(1)->Delete();
    EXPECT_EQ(chart.Legend()->LegendEntries()->Count(), 1);
    const auto gone = chart.SeriesCollection()->Item(1);
    gone->Delete();
    ExpectError1004([&] { gone->SetName("x"); });
    ExpectError1004([&] { gone->Delete(); });
  });
  EXPECT_EQ(Between(after, "<c:legendEntry>", "</c:legend>"),
            "<c:legendEntry><c:idx val=\"1\"/><c:delete val=\"1\"/></c:legendEntry>");
  // The legend entries of a pie are points.
  After(Part("<c:plotArea/>" + kLegend), [](Chart& chart) {
    AddOfType(chart, excel::xlPie);
    EXPECT_EQ(chart.Legend()->LegendEntries()->Count(), 4);
  });
}

TEST_F(ChartPropertiesTest, TextsOfTheChartCanBeReadBack) {
  const S literal = "_x000D_ & \x01";
  After(kNothing, [&](Chart& chart) {
    Book().FindWorksheet("Sheet1")->SetCellValueAt(1, 1, "two\r\nlines _x0041_");
    for (const S& name : {S("=Sheet1!R1C1:R1C1"), literal}) {
      AddOfType(chart, excel::xlColumnClustered)->SetName(name);
    }
    EXPECT_EQ(chart.SeriesCollection()->Item(1)->Name(), "two\r\nlines _x0041_");
  });
  const auto chart = ChartOf("Sheet1");
  EXPECT_EQ(chart->SeriesCollection()->Item(1)->Name(), "two\r\nlines _x0041_");
  EXPECT_EQ(chart->SeriesCollection()->Item(2)->Name(), literal);
  chart->SeriesCollection()->Item(2)->Delete();
  chart->SetHasTitle(true);
  EXPECT_EQ(chart->ChartTitle()->Text(), "two\r\nlines _x0041_");
}

TEST_F(ChartPropertiesTest, ATitleHasAParagraphForEachLine) {
  const S after = Sound(kNothing, [](Chart& chart) {
    const auto series = AddOfType(chart, excel::xlColumnClustered);
    chart.Axes(excel::xlValue, 1)->SetHasTitle(true);
    const auto title = chart.Axes(excel::xlValue, 1)->AxisTitle();
    title->SetText("one\r\n\rtwo\nthree");
    EXPECT_EQ(title->Text(), "one\n\ntwo\nthree");
    title->Font()->SetSize(14.0);
    title->SetText("");
    EXPECT_EQ(title->Text(), "");
    title->Font()->SetFontStyle("Italic");
    title->SetText("again");
    EXPECT_EQ(title->Font()->Size(), runtime::Variant(14.0));
    series->SetHasDataLabels(true);
    series->DataLabels()->Item(1)->SetText("a\r\nb");
  });
  EXPECT_TRUE(Has(after, "<a:r><a:rPr lang=\"en-US\" sz=\"1400\" b=\"0\" i=\"1\"/><a:t>again</a:t></a:r>"))
      << after;
  EXPECT_FALSE(Has(after, "&#13;")) << after;
  EXPECT_TRUE(Has(after, "<a:t>a</a:t></a:r></a:p>")) << after;
}

TEST_F(ChartPropertiesTest, ALabelsTextHasTheFormatOfTheLabels) {
  const S after = After(
      Part("<c:plotArea><c:barChart><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:dLbls><c:txPr><a:bodyPr/>"
           "<a:p><a:pPr><a:defRPr sz=\"900\" bmk=\"A &amp; B\"/></a:pPr></a:p></c:txPr><c:showVal val=\"1\"/>"
           "</c:dLbls><c:val><c:numLit><c:ptCount val=\"1\"/></c:numLit></c:val></c:ser></c:barChart>"
           "</c:plotArea>"),
      [](Chart& chart) { chart.SeriesCollection()->Item(1)->DataLabels()->Item(1)->SetText("T"); });
  EXPECT_TRUE(Has(after, "<a:rPr lang=\"en-US\" sz=\"900\" bmk=\"A &amp; B\"/>")) << after;
}

TEST_F(ChartPropertiesTest, TheJournalNamesWhatChanged) {
  After(Part("<c:plotArea/>" + kLegend), [&](Chart& chart) {
    chart.SetChartType(excel::xlBubble);
    AddBubble(chart, 2);
    const auto series = AddBubble(chart, 3);
    series->SetHasDataLabels(true);
    journal_.clear();
    series->Interior()->SetColor(255);
    series->Border()->SetWeight(1);
    series->DataLabels()->Item(1)->SetText("t");
    chart.Axes(1, 1)->SetMaximumScale(4.5);
    chart.Axes(2, 1)->Border()->SetLineStyle(-4142);
    chart.Legend()->LegendEntries()->Item(2)->Delete();
    series->SetChartType(15);
  });
  EXPECT_EQ(
      std::vector<S>(journal_.begin(), journal_.begin() + 7),
      (std::vector<S>{"Chart.SeriesCollection(2).Interior.Color = 255",
                      "Chart.SeriesCollection(2).Border.Weight = 1",
                      "Chart.SeriesCollection(2).DataLabels(1).Text = \"t\"",
                      "Chart.Axes(1, 1).MaximumScale = 4.5", "Chart.Axes(2, 1).Border.LineStyle = -4142",
                      "Chart.Legend.LegendEntries(2).Delete", "Chart.SeriesCollection(2).ChartType = 15"}));
}

}  // namespace
}  // namespace plotsmith::xlsx
