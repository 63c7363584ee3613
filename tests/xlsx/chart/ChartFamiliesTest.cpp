#include <filesystem>
#include <functional>
#include <sstream>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Package.h"

namespace plotsmith::xlsx {
namespace {

using excel::Chart;
using namespace test;
using test::DeleteSeries;
using S = std::string;

S Part(const S& chart, const S& behind = "") { return test::ChartPartXml(chart, behind); }

const S kNothing = Part("<c:plotArea><c:layout/></c:plotArea>");

class ChartFamiliesTest : public test::ChartTest {};

TEST_F(ChartFamiliesTest, ANewSeriesHasNoLabelsAndANumberOfItsOwn) {
  // This is how Excel writes a chart without labels and with a filtered series.
  const S bars =
      "<c:plotArea><c:barChart><c:barDir val=\"bar\"/><c:grouping val=\"clustered\"/><c:ser><c:idx "
      "val=\"0\"/><c:order val=\"0\"/><c:dLbls><c:delete val=\"1\"/></c:dLbls></c:ser><c:dLbls><c:showVal "
      "val=\"1\"/></c:dLbls><c:axId val=\"1\"/><c:axId val=\"2\"/><c:extLst><c:ext "
      "uri=\"{02D57815-91ED-43cb-92C2-25804820EDAC}\" "
      "xmlns:c15=\"http://schemas.microsoft.com/office/drawing/2012/"
      "chart\"><c15:filteredBarSeries><c15:ser><c:idx val=\"1\"/><c:order "
      "val=\"1\"/></c15:ser></c15:filteredBarSeries></c:ext></c:extLst></c:barChart><c:catAx><c:axId "
      "val=\"1\"/><c:scaling/><c:axPos val=\"l\"/><c:crossAx val=\"2\"/></c:catAx><c:valAx><c:axId "
      "val=\"2\"/><c:scaling/><c:axPos val=\"b\"/><c:crossAx val=\"1\"/></c:valAx></c:plotArea>";
  const auto draw = [](Chart& chart) {
    DeleteSeries(chart);
    for (int i = 0; i < 2; ++i) {
      const auto series = chart.SeriesCollection()->NewSeries();
      series->SetValues("=Sheet1!R2C3:R5C3");
      EXPECT_FALSE(series->HasDataLabels());
    }
  };
  const S after = Sound(Part(bars), draw);
  EXPECT_EQ(test::CountOf(after, "<c:idx val=\"1\"/>"), 1U) << after;
  EXPECT_TRUE(Has(after, "<c:idx val=\"2\"/><c:order val=\"2\"/>")) << after;
  // This also holds for another type, and for labels that were shown meanwhile.
  const S column = Sound(after, [&](Chart& chart) {
    chart.SetChartType(excel::xlColumnStacked);
    for (int i = 1; i <= 2; ++i) EXPECT_FALSE(chart.SeriesCollection()->Item(i)->HasDataLabels());
    chart.SeriesCollection()->Item(1)->SetHasDataLabels(true);
  });
  EXPECT_EQ(test::CountOf(column, "<c:showVal val=\"1\"/>"), 2U) << column;
  Sound(column, draw);
}

TEST_F(ChartFamiliesTest, ARefreshKeepsTheFormatsOfAPie) {
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
  // A pie that becomes flat again has none of these settings.
  const S flat = Sound(after, [](Chart& chart) { chart.SetChartType(excel::xlPie); });
  EXPECT_FALSE(Has(flat, "explosion") || Has(flat, "view3D") || Has(flat, "pie3D")) << flat;
  EXPECT_TRUE(Has(flat, "<c:firstSliceAng val=\"0\"/></c:pieChart>")) << flat;
  const S solid = Sound(kNothing, [](Chart& chart) {
    chart.SetChartType(excel::xl3DColumn);
    chart.SetChartType(excel::xl3DPie);
  });
  EXPECT_TRUE(Has(solid, "<c:view3D><c:rotX val=\"30\"/><c:rotY val=\"0\"/>"))
      << "the view of a column chart isn't used for a pie";
  EXPECT_FALSE(Has(solid, "floor"));
}

/// A stock chart has three or four series. With any other number, the chart is a line chart with the same
/// look.
TEST_F(ChartFamiliesTest, AStockChartWithAnotherNumberOfSeriesBecomesALineChart) {
  const auto stock = [](int count) {
    S series;
    for (int i = 0; i < count; ++i) {
      const S n = std::to_string(i);
      series += "<c:ser><c:idx val=\"" + n + "\"/><c:order val=\"" + n + "\"/></c:ser>";
    }
    return Part("<c:plotArea><c:stockChart>" + series +
                "<c:hiLowLines/><c:upDownBars/><c:axId val=\"1\"/><c:axId val=\"2\"/></c:stockChart>"
                "<c:catAx><c:axId val=\"1\"/><c:scaling/><c:axPos val=\"b\"/><c:crossAx val=\"2\"/></c:catAx>"
                "<c:valAx><c:axId val=\"2\"/><c:scaling/><c:axPos val=\"l\"/><c:crossAx val=\"1\"/></c:valAx>"
                "</c:plotArea>");
  };
  const auto remove = [](int count) {
    return [count](Chart& chart) {
      for (int i = 0; i < count; ++i) chart.SeriesCollection()->Item(1)->Delete();
    };
  };
  const auto add = [](Chart& chart) { chart.SeriesCollection()->NewSeries(); };
  const struct {
    int before;
    std::function<void(Chart&)> change;
    const char* group;
    std::size_t series;
  } cases[] = {{3, remove(1), "lineChart", 2},  {3, remove(3), "lineChart", 0},
               {4, remove(1), "stockChart", 3}, {4, add, "lineChart", 5},
               {3, add, "stockChart", 4},       {0, add, "lineChart", 1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.before) + " to " + std::to_string(c.series));
    const S after = After(stock(c.before), c.change);
    EXPECT_TRUE(Has(after, S("</c:") + c.group + ">")) << after;
    EXPECT_EQ(CountOf(after, "<c:ser>"), c.series);
    EXPECT_TRUE(Has(after, "<c:hiLowLines/><c:upDownBars/>")) << after;
    if (c.group == S("lineChart")) Sound(stock(c.before), c.change);
  }
}

TEST_F(ChartFamiliesTest, AChartWithoutAGroupIsWrittenWithAnEmptyOne) {
  const S after = Sound(kNothing, [](Chart& chart) { chart.SetHasTitle(false); });
  EXPECT_EQ(CountOf(after, "<c:delete val=\"1\"/>"), 2u) << after;
  EXPECT_EQ(CountOf(after, "<c:ser>"), 0u);
  const S drawn = Sound(after, [](Chart& chart) { AddOfType(chart, excel::xlColumnClustered); });
  EXPECT_EQ(CountOf(drawn, "<c:delete val=\"0\"/>"), 2u) << drawn;
}

TEST_F(ChartFamiliesTest, AxesAreRestoredAfterTypesWithoutThem) {
  const S columns =
      "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:axId val=\"1\"/><c:axId val=\"2\"/>"
      "</c:barChart><c:catAx><c:axId val=\"1\"/><c:scaling/><c:axPos val=\"t\"/><c:numFmt formatCode=\"@\" "
      "sourceLinked=\"0\"/><c:crossAx val=\"2\"/><c:crosses val=\"max\"/></c:catAx><c:valAx>"
      "<c:axId val=\"2\"/><c:scaling><c:max val=\"50\"/></c:scaling><c:axPos val=\"r\"/>"
      "<c:crossAx val=\"1\"/><c:crosses val=\"min\"/><c:crossBetween val=\"midCat\"/></c:valAx></c:plotArea>";
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

TEST_F(ChartFamiliesTest, ASeriesKeepsTheTypeThatItsGroupGivesIt) {
  const S ser = "<c:ser><c:idx val=\"0\"/><c:order val=\"0\"/></c:ser>";
  const S second = runtime::Replace(ser, "\"0\"", "\"1\"");
  const S scales = "<c:axId val=\"1\"/><c:axId val=\"2\"/>";
  const S valueAxes =
      "<c:valAx><c:axId val=\"1\"/><c:scaling/><c:axPos val=\"b\"/><c:crossAx val=\"2\"/><c:crosses "
      "val=\"autoZero\"/></c:valAx><c:valAx><c:axId val=\"2\"/><c:scaling/><c:axPos val=\"l\"/><c:crossAx "
      "val=\"1\"/><c:crosses val=\"autoZero\"/></c:valAx>";
  const S axes = runtime::Replace(valueAxes, "valAx><c:axId val=\"1\"/>", "catAx><c:axId val=\"1\"/>");
  const S categoryAxes = runtime::Replace(axes, "</c:valAx><c:valAx>", "</c:catAx><c:valAx>");
  const struct {
    const char* what;
    S plot;
    std::int32_t type, next;  ///< The types of the series and of a new series after it.
  } cases[] = {
      {"bubbles that are 3-D only in the group",
       "<c:bubbleChart>" + ser + "<c:bubble3D val=\"1\"/>" + scales + "</c:bubbleChart>" + valueAxes, 87, 87},
      {"a smooth line through points",
       "<c:scatterChart><c:scatterStyle val=\"smoothMarker\"/>" + ser + scales + "</c:scatterChart>" +
           valueAxes,
       72, 74},
      {"a line without markers, as the group has none",
       "<c:lineChart><c:grouping val=\"standard\"/>" + ser + scales + "</c:lineChart>" + categoryAxes, 4, 4},
      {"cones",
       "<c:bar3DChart><c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>" + ser +
           "<c:shape val=\"cone\"/>" + scales + "</c:bar3DChart>" + categoryAxes,
       99, 99},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const S after = Sound(Part("<c:plotArea>" + c.plot + "</c:plotArea>"), [&](Chart& chart) {
      const auto series = chart.SeriesCollection()->Item(1);
      EXPECT_EQ(series->ChartType(), c.type);
      series->SetBubbleSizes("=Sheet1!R2C3:R2C3");
      EXPECT_EQ(series->ChartType(), c.type);
      EXPECT_EQ(chart.SeriesCollection()->NewSeries()->ChartType(), c.next);
    });
    EXPECT_EQ(Has(after, "<c:bubbleSize>"), c.type == excel::xlBubble3DEffect) << after;
  }
  // Columns can be combined with a line, even if a program has written the grouping "standard".
  Sound(Part("<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:grouping val=\"standard\"/>" + ser + second +
             scales + "</c:barChart>" + categoryAxes + "</c:plotArea>"),
        [](Chart& chart) {
          EXPECT_EQ(chart.ChartType(), excel::xlColumnClustered);
          chart.SeriesCollection()->Item(2)->SetChartType(excel::xlLine);
          EXPECT_EQ(chart.SeriesCollection()->Item(2)->ChartType(), excel::xlLine);
          EXPECT_EQ(chart.SeriesCollection()->Item(1)->ChartType(), excel::xlColumnClustered);
        });
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
  EXPECT_TRUE(
      Has(line, "</c:ser><c:marker val=\"1\"/><c:axId val=\"111111111\"/><c:axId val=\"111111112\"/>"))
      << line;
  EXPECT_LT(after.find("<c:barChart>"), after.find("<c:lineChart>"));

  // Settings of either group are kept by the next refresh.
  const S withLines =
      runtime::Replace(after, "<c:marker val=\"1\"/>", "<c:hiLowLines/><c:marker val=\"1\"/>");
  const S again = Sound(withLines, draw);
  EXPECT_TRUE(Has(again, "<c:hiLowLines/>"));
  EXPECT_EQ(CountOf(again, "<c:ser>"), 4u);
  EXPECT_EQ(CountOf(again, "Chart>"), CountOf(after, "Chart>"));

  const S moved = Sound(
      after, [](Chart& chart) { chart.SeriesCollection()->Item(4)->SetChartType(excel::xlColumnClustered); });
  EXPECT_FALSE(Has(moved, "lineChart")) << "an empty group is removed";
  EXPECT_TRUE(Has(moved, "<c:grouping val=\"clustered\"/>")) << "all columns have the same stacking";
  EXPECT_FALSE(Has(moved, "overlap") || Has(moved, "symbol"));
  const S area = Sound(
      after, [](Chart& chart) { chart.SeriesCollection()->Item(1)->SetChartType(excel::xlAreaStacked); });
  EXPECT_LT(area.find("<c:areaChart>"), area.find("<c:barChart>")) << "areas are drawn first";
}

TEST_F(ChartFamiliesTest, ChartsOfOtherProgramsCanHaveAllTypes) {
  std::error_code absent;
  const auto folder = std::filesystem::path(test::kCorpusFolder) / "charts";
  if (!std::filesystem::is_directory(folder, absent)) GTEST_SKIP() << "the corpus is missing";
  const auto mix = [](Chart& chart) {
    DeleteSeries(chart);
    chart.SetChartType(excel::xlBarClustered);
    AddOfType(chart, excel::xlColumnStacked);
    AddOfType(chart, excel::xlLineMarkers)->SetMarkerSize(9);
  };
  const std::function<void(Chart&)> families[] = {
      [](Chart& chart) { chart.SetChartType(excel::xlBubble3DEffect); },
      [](Chart& chart) { chart.SetChartType(excel::xl3DPieExploded); }, mix};
  int seen = 0;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    SCOPED_TRACE(file.path().filename());
    int family = 0;
    for (const auto& call : families) {
      SCOPED_TRACE(family++);
      OpenFile(file.path().string());
      if (!Book().FindWorksheet("Sheet1")) Book().Tabs().Add(0)->SetName("Sheet1");
      for (const auto& entry : Book().Tabs().All()) {
        if (!entry->worksheet) continue;
        const auto shapes = entry->worksheet->Shapes();
        for (int i = 1; i <= shapes->Count(); ++i) {
          if (shapes->Item(i)->Type() == excel::msoChart) call(*ChartOf(shapes->Item(i)));
        }
      }
      SaveAndReopen();
      const auto before = Package::Open(file.path().string());
      for (const S& part : before.Parts()) {
        if (!part.starts_with("/xl/charts/chart") || !part.ends_with(".xml")) continue;
        const S after = SavedPart(part);
        if (after == before.Read(part)) continue;  // The part belongs to a chart sheet.
        const S known = test::ChartComplaints(before.Read(part));
        std::istringstream complaints(test::ChartComplaints(after));
        for (S line; std::getline(complaints, line);) {
          EXPECT_TRUE(Has(known, line)) << line << " in " << part << "\n" << after;
        }
        ++seen;
      }
    }
  }
  EXPECT_GT(seen, 100);
}

}  // namespace
}  // namespace plotsmith::xlsx
