#include <functional>
#include <set>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using excel::Chart;
using excel::Ref;
using excel::Series;
using test::Between;
using test::ExpectError1004;
using S = std::string;

S Part(const S& chart, const S& behind = "") { return test::ChartPartXml(chart, behind); }

const S kNothing = Part("<c:plotArea><c:layout/></c:plotArea>");
const S kLegend = "<c:legend><c:legendPos val=\"r\"/></c:legend>";

bool Has(const S& text, const S& what) { return text.find(what) != S::npos; }

std::size_t CountOf(const S& text, const S& what) {
  std::size_t count = 0;
  for (auto at = text.find(what); at != S::npos; at = text.find(what, at + 1)) ++count;
  return count;
}

void DeleteSeries(Chart& chart) {
  while (chart.SeriesCollection()->Count() > 0) chart.SeriesCollection()->Item(1)->Delete();
}

/// One series for a row of the sheet, as a bubble.
Ref<Series> AddBubble(Chart& chart, int row) {
  const auto series = chart.SeriesCollection()->NewSeries();
  const S cell = "=Sheet1!R" + std::to_string(row);
  series->SetName("B" + std::to_string(row));
  series->SetXValues(cell + "C3:R" + std::to_string(row) + "C3");
  series->SetValues(cell + "C4:R" + std::to_string(row) + "C4");
  series->SetBubbleSizes(cell + "C3:R" + std::to_string(row) + "C3");
  return series;
}

Ref<Series> AddOfType(Chart& chart, std::int32_t type) {
  const auto series = chart.SeriesCollection()->NewSeries();
  series->SetChartType(type);
  series->SetXValues("=Sheet1!R2C1:R5C1");
  series->SetValues("=Sheet1!R2C3:R5C3");
  return series;
}

class ChartFamiliesTest : public test::ChartTest {
 protected:
  /// After a call that must leave the part as the schema and Excel want it.
  S Sound(const S& part, const std::function<void(Chart&)>& call) {
    const S after = After(part, call);
    EXPECT_EQ(test::ChartComplaints(after), "") << after;
    return after;
  }
};

TEST_F(ChartFamiliesTest, APieThatSomebodyDressedComesOutOfARefreshAsItWentIn) {
  const S pie =
      "<c:view3D><c:rotX val=\"75\"/><c:rotY val=\"120\"/></c:view3D><c:plotArea><c:pie3DChart><c:varyColors "
      "val=\"1\"/><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:explosion val=\"40\"/></c:ser><c:dLbls>"
      "<c:showLegendKey val=\"1\"/></c:dLbls></c:pie3DChart></c:plotArea>";
  const S after = Sound(Part(pie), [](Chart& chart) {
    DeleteSeries(chart);
    const auto series = chart.SeriesCollection()->NewSeries();
    series->SetXValues("=Sheet1!R2C1:R5C1");
    series->SetValues("=Sheet1!R2C3:R5C3");
    chart.SetChartType(excel::xlPie);
    series->ApplyDataLabels(excel::xlDataLabelsShowPercent);
    series->DataLabels()->SetPosition(excel::xlLabelPositionBestFit);
    chart.SetChartType(excel::xl3DPieExploded);
    EXPECT_FALSE(chart.HasAxis(excel::xlCategory));
    EXPECT_FALSE(chart.HasAxis(excel::xlValue));
  });
  EXPECT_TRUE(Has(after, "<c:rotX val=\"75\"/><c:rotY val=\"120\"/>")) << after;
  EXPECT_TRUE(Has(after, "</c:ser><c:dLbls><c:showLegendKey val=\"1\"/></c:dLbls></c:pie3DChart>")) << after;
  EXPECT_TRUE(Has(after, "<c:explosion val=\"25\"/><c:dLbls><c:dLblPos val=\"bestFit\"/>")) << after;
  EXPECT_TRUE(Has(after, "<c:cat><c:strRef>")) << after;
  EXPECT_FALSE(Has(after, "Ax>")) << after;
  // a pie drawn flat again has nothing left of all that
  const S flat = Sound(after, [](Chart& chart) { chart.SetChartType(excel::xlPie); });
  EXPECT_FALSE(Has(flat, "explosion") || Has(flat, "view3D") || Has(flat, "pie3D")) << flat;
  EXPECT_TRUE(Has(flat, "<c:firstSliceAng val=\"0\"/></c:pieChart>")) << flat;
  const S solid = Sound(kNothing, [](Chart& chart) {
    chart.SetChartType(excel::xl3DColumn);
    chart.SetChartType(excel::xl3DPie);
  });
  EXPECT_TRUE(Has(solid, "<c:view3D><c:rotX val=\"30\"/><c:rotY val=\"0\"/>"))
      << "a column's view is no pie's";
  EXPECT_FALSE(Has(solid, "floor"));
}

TEST_F(ChartFamiliesTest, AxesComeBackFromTypesWithoutThem) {
  const S columns =
      "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart>"
      "<c:catAx><c:axId val=\"1\"/><c:scaling/><c:axPos val=\"t\"/><c:numFmt formatCode=\"@\" "
      "sourceLinked=\"0\"/><c:crossAx val=\"2\"/><c:crosses val=\"max\"/></c:catAx><c:valAx><c:axId "
      "val=\"2\"/><c:scaling><c:max val=\"50\"/></c:scaling><c:axPos val=\"r\"/><c:crossAx "
      "val=\"1\"/><c:crosses "
      "val=\"min\"/><c:crossBetween val=\"midCat\"/></c:valAx></c:plotArea>";
  for (const std::int32_t through : {excel::xlPie, excel::xlBubble, excel::xl3DPie, excel::xlXYScatter}) {
    SCOPED_TRACE(through);
    const S after = Sound(Part(columns), [&](Chart& chart) {
      AddOfType(chart, excel::xlColumnClustered);
      chart.SetChartType(through);
      chart.SetChartType(excel::xlBarClustered);
      chart.SetChartType(excel::xlColumnClustered);
    });
    for (const char* kept : {"<c:axPos val=\"t\"/>", "formatCode=\"@\"", "<c:crosses val=\"max\"/>",
                             "<c:max val=\"50\"/>", "<c:axPos val=\"r\"/>", "<c:crosses val=\"min\"/>",
                             "<c:crossBetween val=\"midCat\"/>", "<c:cat>", "<c:val>"}) {
      EXPECT_TRUE(Has(after, kept)) << kept << "\n" << after;
    }
    EXPECT_LT(after.find("<c:catAx>"), after.find("<c:valAx>"));
    EXPECT_EQ(CountOf(after, "<c:valAx>"), 1u);
  }
}

TEST_F(ChartFamiliesTest, EachBubbleIsASeriesAndKeepsItsSize) {
  const S bubbles =
      "<c:plotArea><c:bubbleChart><c:varyColors val=\"0\"/><c:bubbleScale val=\"30\"/><c:showNegBubbles "
      "val=\"1\"/><c:sizeRepresents val=\"w\"/><c:axId val=\"7\"/><c:axId val=\"8\"/></c:bubbleChart>"
      "<c:valAx><c:axId val=\"8\"/><c:scaling/><c:axPos val=\"l\"/><c:crossAx val=\"7\"/><c:crosses "
      "val=\"autoZero\"/></c:valAx><c:valAx><c:axId val=\"7\"/><c:scaling><c:max "
      "val=\"99\"/></c:scaling><c:axPos "
      "val=\"b\"/><c:crossAx val=\"8\"/><c:crosses val=\"autoZero\"/></c:valAx></c:plotArea>";
  for (const bool detour : {false, true}) {
    SCOPED_TRACE(detour);
    const S after = Sound(Part(bubbles), [&](Chart& chart) {
      if (detour) chart.SetChartType(excel::xlColumnClustered);
      if (!detour) chart.SetChartType(excel::xlBubble);
      for (int row = 2; row <= 4; ++row) AddBubble(chart, row)->SetHasDataLabels(true);
      if (detour) {
        chart.SetChartType(excel::xlXYScatter);
        chart.SetChartType(excel::xlBubble);
      }
      EXPECT_EQ(chart.Axes(excel::xlCategory, 1)->MaximumScale(), 99);
      EXPECT_EQ(chart.Axes(excel::xlValue, 1)->MinimumScale(), 0);
      chart.SeriesCollection()->Item(2)->Interior()->SetColor(255);
      chart.SetChartType(excel::xlBubble3DEffect);
    });
    EXPECT_TRUE(Has(after,
                    "</c:ser><c:bubbleScale val=\"30\"/><c:showNegBubbles val=\"1\"/><c:sizeRepresents "
                    "val=\"w\"/>"))
        << after;
    const S second = Between(after, "<c:ser><c:idx val=\"1\"/>", "</c:ser>");
    EXPECT_EQ(Between(second, "<c:spPr>", "<c:invert"),
              "<c:spPr><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill></c:spPr>");
    EXPECT_EQ(Between(second, "<c:xVal>", "<c:numCache>"), "<c:xVal><c:numRef><c:f>Sheet1!$C$3</c:f>");
    EXPECT_EQ(Between(second, "<c:yVal>", "<c:numCache>"), "<c:yVal><c:numRef><c:f>Sheet1!$D$3</c:f>");
    EXPECT_EQ(Between(second, "<c:bubbleSize>", "</c:bubbleSize>"),
              "<c:bubbleSize><c:numRef><c:f>Sheet1!$C$3</c:f><c:numCache><c:formatCode>General</c:formatCode>"
              "<c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>5</c:v></c:pt></c:numCache></c:numRef>");
    EXPECT_EQ(CountOf(after, "<c:bubble3D val=\"1\"/>"), 3u);
    EXPECT_FALSE(Has(after, "marker") || Has(after, "smooth") || Has(after, "noFill"))
        << "nothing stays of the scatter\n"
        << after;
  }
}

TEST_F(ChartFamiliesTest, ColumnsAndALineShareTheirAxes) {
  const auto draw = [](Chart& chart) {
    DeleteSeries(chart);
    for (int i = 0; i < 3; ++i) AddOfType(chart, excel::xlColumnStacked);
    chart.ChartGroups(1)->SetGapWidth(0);
    const auto mark = AddOfType(chart, excel::xlLineMarkers);
    mark->SetMarkerForegroundColor(255);
    mark->SetMarkerBackgroundColor(255);
    mark->SetMarkerStyle(excel::xlMarkerStyleDash);
    mark->SetMarkerSize(55);
    mark->Border()->SetLineStyle(excel::xlNone);
    mark->ApplyDataLabels(2);
    mark->DataLabels()->SetPosition(excel::xlLabelPositionCenter);
    EXPECT_EQ(chart.SeriesCollection()->Count(), 4);
    ExpectError1004([&] { chart.ChartGroups(3); });
    ExpectError1004([&] { chart.ChartGroups(2)->SetGapWidth(50); });
    ExpectError1004([&] { mark->SetChartType(excel::xlBubble); });
    ExpectError1004([&] { mark->SetChartType(excel::xlBarStacked); });
    ExpectError1004([&] { mark->DataLabels()->SetPosition(3); });
  };
  const S after = Sound(kNothing, draw);
  EXPECT_EQ(Between(after, "</c:ser><c:gapWidth", "</c:barChart>"),
            "</c:ser><c:gapWidth val=\"0\"/><c:overlap val=\"100\"/><c:axId val=\"111111111\"/><c:axId "
            "val=\"111111112\"/>");
  const S line = Between(after, "<c:lineChart>", "</c:lineChart>");
  EXPECT_TRUE(Has(line,
                  "<c:lineChart><c:grouping val=\"standard\"/><c:varyColors val=\"0\"/><c:ser><c:idx "
                  "val=\"3\"/><c:order val=\"3\"/><c:spPr><a:ln><a:noFill/></a:ln></c:spPr><c:marker>"
                  "<c:symbol val=\"dash\"/><c:size val=\"55\"/><c:spPr><a:solidFill><a:srgbClr "
                  "val=\"FF0000\"/></a:solidFill><a:ln><a:solidFill><a:srgbClr val=\"FF0000\"/>"))
      << line;
  EXPECT_TRUE(Has(line,
                  "</c:ser><c:marker val=\"1\"/><c:axId val=\"111111111\"/><c:axId "
                  "val=\"111111112\"/>"))
      << line;
  EXPECT_LT(after.find("<c:barChart>"), after.find("<c:lineChart>"));

  // what somebody gave either group is there after the next refresh
  const S dressed = runtime::Replace(after, "<c:marker val=\"1\"/>", "<c:hiLowLines/><c:marker val=\"1\"/>");
  const S again = Sound(dressed, draw);
  EXPECT_TRUE(Has(again, "<c:hiLowLines/>"));
  EXPECT_EQ(CountOf(again, "<c:ser>"), 4u);
  EXPECT_EQ(CountOf(again, "Chart>"), CountOf(after, "Chart>"));

  const S moved = Sound(
      after, [](Chart& chart) { chart.SeriesCollection()->Item(4)->SetChartType(excel::xlColumnClustered); });
  EXPECT_FALSE(Has(moved, "lineChart")) << "an emptied group goes";
  EXPECT_TRUE(Has(moved, "<c:grouping val=\"clustered\"/>")) << "and columns are stacked alike";
  EXPECT_FALSE(Has(moved, "overlap") || Has(moved, "symbol"));
  const S area = Sound(
      after, [](Chart& chart) { chart.SeriesCollection()->Item(1)->SetChartType(excel::xlAreaStacked); });
  EXPECT_LT(area.find("<c:areaChart>"), area.find("<c:barChart>")) << "areas are drawn first";
}

TEST_F(ChartFamiliesTest, AnAutomaticColourCanBeReadAtOnceAndSetOnAnother) {
  const S grey = "<c:style val=\"1\"/>", violet = "<c:style val=\"6\"/>";
  const S newer =
      "<mc:AlternateContent "
      "xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\"><mc:Choice "
      "Requires=\"c14\"><c14:style xmlns:c14=\"http://schemas.microsoft.com/office/drawing/2007/8/2/chart\" "
      "val=\"102\"/></mc:Choice></mc:AlternateContent>";
  struct Case {
    S style;
    std::int32_t first, second, seventh;
  };
  for (const Case& c : {Case{"", 0xBD814F, 0x4D50C0, 0x754D2C}, Case{newer, 0xBD814F, 0x4D50C0, 0x754D2C},
                        Case{grey, 0x1D1D1D, 0x737373, 0x1D1D1D}, Case{violet, 0xA26480, -1, -1}}) {
    SCOPED_TRACE(c.style);
    After(runtime::Replace(kNothing, "<c:chart>", c.style + "<c:chart>"), [&](Chart& chart) {
      chart.SetChartType(excel::xlBubble);
      std::set<std::int32_t> seen;
      for (int i = 1; i <= 7; ++i) {
        const auto interior = chart.SeriesCollection()->NewSeries()->Interior();
        const std::int32_t color = interior->Color();
        seen.insert(color);
        const std::int32_t wanted = i == 1 ? c.first : i == 2 ? c.second : i == 7 ? c.seventh : -1;
        EXPECT_TRUE(wanted < 0 || color == wanted) << i << ": " << color;
      }
      EXPECT_GE(seen.size(), 6u);
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

TEST_F(ChartFamiliesTest, PropertiesOfSeriesLabelsAndAxesAreWrittenInPlace) {
  struct Case {
    const char* what;
    std::int32_t type;
    std::function<void(Chart&, Series&)> call;
    S after, gone;
  };
  const S lineEnd = "</a:ln></c:spPr>";
  const Case cases[] = {
      {"a pattern takes the colour for its ground", 15,
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
      {"an automatic index takes the filling away, and leaves the outline", 51,
       [](Chart&, Series& s) {
         s.Border()->SetColor(0);
         s.Interior()->SetColor(0xFF);
         s.Interior()->SetColorIndex(-4105);
       },
       "<c:spPr><a:ln><a:solidFill><a:srgbClr val=\"000000\"/></a:solidFill></a:ln></c:spPr>", "FF0000"},
      {"a hairline shows a line that was hidden", 15,
       [](Chart&, Series& s) {
         s.Border()->SetLineStyle(-4142);
         s.Border()->SetWeight(1);
       },
       "<c:spPr><a:ln w=\"3175\"/></c:spPr>", "noFill"},
      {"dashes of a colour", 52,
       [](Chart&, Series& s) {
         s.Border()->SetLineStyle(-4115);
         s.Border()->SetColor(0xFF);
       },
       "<a:ln><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:prstDash val=\"dash\"/>" + lineEnd,
       ""},
      {"a label with a text of its own repeats how the others look", 15,
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
       "<c:dLblPos val=\"ctr\"/><c:showLegendKey val=\"0\"/><c:showVal val=\"1\"/>",
       ""},
      {"labels of points stand by their numbers, and follow what the others are told", 51,
       [](Chart&, Series& s) {
         s.SetHasDataLabels(true);
         for (const int point : {3, 1, 2, 1}) s.DataLabels()->Item(point)->SetText(std::to_string(point));
         s.DataLabels()->Font()->SetFontStyle("Bold");
         s.DataLabels()->SetOrientation(45);
       },
       "<a:bodyPr rot=\"-2700000\" vert=\"horz\"/><a:lstStyle/><a:p><a:pPr><a:defRPr b=\"1\" "
       "i=\"0\"/></a:pPr><a:r><a:rPr lang=\"en-US\" b=\"1\" i=\"0\"/><a:t>3</a:t>",
       "<c:idx val=\"3\"/>"},
      {"no labels where the group has some for all", 51,
       [](Chart&, Series& s) {
         s.SetHasDataLabels(true);
         s.SetHasDataLabels(false);
         EXPECT_FALSE(s.DataLabels());
       },
       "<c:invertIfNegative val=\"0\"/><c:cat>", "dLbls"},
      {"an axis of values", 15,
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
       "<c:scaling><c:orientation val=\"minMax\"/><c:max val=\"22\"/><c:min "
       "val=\"-7\"/></c:scaling><c:delete "
       "val=\"0\"/><c:axPos val=\"b\"/><c:majorGridlines/><c:numFmt formatCode=\"General\" "
       "sourceLinked=\"1\"/>"
       "<c:majorTickMark val=\"out\"/><c:minorTickMark val=\"none\"/><c:tickLblPos "
       "val=\"low\"/><c:spPr><a:ln>"
       "<a:noFill/></a:ln></c:spPr><c:crossAx val=\"111111112\"/><c:crosses "
       "val=\"autoZero\"/><c:crossBetween "
       "val=\"midCat\"/><c:majorUnit val=\"14.5\"/><c:dispUnits><c:builtInUnit val=\"thousands\"/>"
       "<c:dispUnitsLbl/></c:dispUnits></c:valAx>",
       "logBase"},
      {"where an axis is crossed stands with the one that crosses it", 51,
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
      {"an axis of categories has no scale", 51,
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

TEST_F(ChartFamiliesTest, ScalesCoverWhatIsDrawn) {
  struct Case {
    std::int32_t type;
    double minimum, maximum;
  };
  // the amounts are 10, 5, 7 and 1, drawn twice
  for (const Case& c : {Case{51, 0, 12}, Case{52, 0, 25}, Case{53, 0, 1}, Case{54, 0, 10}, Case{1, 0, 12}}) {
    SCOPED_TRACE(c.type);
    After(kNothing, [&](Chart& chart) {
      for (int i = 0; i < 2; ++i) AddOfType(chart, c.type);
      EXPECT_EQ(chart.Axes(2, 1)->MinimumScale(), c.minimum);
      EXPECT_EQ(chart.Axes(2, 1)->MaximumScale(), c.maximum);
    });
  }
}

TEST_F(ChartFamiliesTest, LegendEntriesGoWithTheirSeries) {
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
      "<c:legend><c:legendPos val=\"r\"/><c:legendEntry><c:idx val=\"1\"/><c:delete "
      "val=\"1\"/></c:legendEntry>"
      "<c:legendEntry><c:idx val=\"3\"/><c:delete val=\"1\"/></c:legendEntry></c:legend>";
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
  // of a pie, entries are points
  After(Part("<c:plotArea/>" + kLegend), [](Chart& chart) {
    AddOfType(chart, excel::xlPie);
    EXPECT_EQ(chart.Legend()->LegendEntries()->Count(), 4);
  });
}

TEST_F(ChartFamiliesTest, TheJournalNamesWhatChanged) {
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
