#include <map>

#include "render/cairo/CairoPainter.h"
#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith {
namespace {

using namespace test;

class LayoutTest : public DrawingTest {
 protected:
  Drawing DrawColumns(const S& behind, const S& plotMore = "", const S& before = "",
                      const S& grouping = "clustered") {
    const S first = "<c:barDir val=\"col\"/><c:grouping val=\"" + grouping + "\"/>";
    S chart = PlotXml(
        plotMore +
            GroupXml("barChart", first, SeriesXml(0, {1, 2}) + SeriesXml(1, {3, 1}) + SeriesXml(2, {2, 2})) +
            AxesXml(),
        behind);
    if (!before.empty()) chart.replace(0, chart.find("<c:plotArea>"), before);
    return Draw(chart);
  }
};

S LegendXml(const S& position, const S& more = "") {
  return "<c:legend><c:legendPos val=\"" + position + "\"/>" + more + "</c:legend>";
}

TEST_F(LayoutTest, TheLegendLeavesOutEntriesAndHasItsManualPosition) {
  const Drawing deleted =
      DrawColumns(LegendXml("r", "<c:legendEntry><c:idx val=\"1\"/><c:delete val=\"1\"/></c:legendEntry>"));
  EXPECT_EQ(TextsOf(deleted, Role::kLegendEntry), (Texts{"Series 0", "Series 2"}));
  EXPECT_EQ(ItemsOf(deleted, Role::kLegendKey)[1].tag.series, 3);
  const Drawing piled = DrawColumns(LegendXml("r"), "", "", "stacked");
  EXPECT_EQ(TextsOf(piled, Role::kLegendEntry), (Texts{"Series 2", "Series 1", "Series 0"}));

  const S layout = LayoutXml("edge", "0.5", "0.25", "<c:w val=\"0.4\"/><c:h val=\"0.5\"/>");
  const Drawing dragged = DrawColumns(LegendXml("r", layout + LookXml("", SolidXml("FF0000"))));
  const Rect box = BoxOf(dragged, Role::kLegend);
  ExpectNear(box, {192, 67.5, 153.6, 135});
  for (const Rect& entry : BoxesOf(dragged, Role::kLegendEntry)) EXPECT_TRUE(Union(box, entry) == box);
}

TEST_F(LayoutTest, ALegendThatIsTooNarrowForItsTextsShowsAllEntriesThatHaveHeight) {
  struct {
    const char *what, *height;
    std::size_t entries;
  } cases[] = {{"high enough", "0.6", 3}, {"one row", "0.08", 1}};
  for (const auto& test : cases) {
    const Drawing drawing = Draw(PlotXml(
        "<c:pieChart><c:varyColors val=\"1\"/>" +
            SeriesXml(0, {1, 2, 3}, "", "", CategoriesXml({"Task01", "Task02", "Task03"})) + "</c:pieChart>",
        LegendXml("l", LayoutXml("edge", "0.04", "0.3",
                                 S("<c:w val=\"0.08\"/><c:h val=\"") + test.height + "\"/>"))));
    EXPECT_EQ(ItemsOf(drawing, Role::kLegendEntry).size(), test.entries) << test.what;
  }
}

TEST_F(LayoutTest, ALegendShowsTheEntriesThatFitAndDoesNotCoverThePlot) {
  const auto many = [](int count, const S& name) {
    S series;
    for (int i = 0; i < count; ++i) {
      S one = SeriesXml(i, {1, 2});
      series += runtime::Replace(one, "Series " + std::to_string(i), name + std::to_string(i));
    }
    return series;
  };
  struct {
    const char *what, *position;
    int series;
    S name;
    double width, height;
    std::size_t entries;
  } cases[] = {
      {"all fit", "r", 12, "Name ", 384, 270, 12},
      {"a column of long names", "r", 40, "A rather long name of a series ", 384, 270, 18},
      {"columns of short names", "l", 90, "N", 384, 270, 72},
      {"rows", "b", 200, "Name ", 384, 270, 48},
      {"rows of names in several lines", "t", 9, S(160, 'x') + " ", 384, 270, 3},
      {"no room at all", "r", 2, "Name ", 40, 40, 0},
  };
  for (const auto& test : cases) {
    const Drawing drawing =
        Draw(PlotXml(ColumnsXml(many(test.series, test.name)) + AxesXml(), LegendXml(test.position)), "",
             test.width, test.height);
    EXPECT_EQ(ItemsOf(drawing, Role::kLegendKey).size(), test.entries) << test.what;
    const S some = std::to_string(test.entries);
    Texts notes = {"The legend has room for " + some + " of its entries; the others are left out."};
    if (test.entries == static_cast<std::size_t>(test.series)) notes.clear();
    if (test.entries == 0) notes = {"There is no space for the legend, which is left out."};
    EXPECT_EQ(notes_, notes) << test.what;
    const Rect legend = BoxOf(drawing, Role::kLegend), plot = BoxOf(drawing, Role::kPlotArea);
    if (test.entries > 0) {
      EXPECT_FALSE(Overlap(legend, plot)) << test.what;
      EXPECT_FALSE(Overlap(BoxOf(drawing, Role::kLegendEntry), BoxOf(drawing, Role::kTickLabel)))
          << test.what;
      EXPECT_TRUE(Union(legend, BoxOf(drawing, Role::kLegendEntry)) == legend) << test.what;
      EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
    }
    const auto keys = BoxesOf(drawing, Role::kLegendKey);
    for (std::size_t i = 1; i < keys.size(); ++i) EXPECT_FALSE(Overlap(keys[i - 1], keys[i])) << test.what;
  }
}

TEST_F(LayoutTest, ALegendThatWasMovedHasTheSizeOfTheAutomaticOne) {
  const S frame = LookXml(SolidXml("FFFFCC"));
  const auto boxes = [](const Drawing& drawing) {
    std::vector<Rect> all = BoxesOf(drawing, Role::kLegend);
    for (const Role role : {Role::kLegendKey, Role::kLegendEntry}) {
      for (const Rect& box : BoxesOf(drawing, role)) all.push_back(box);
    }
    return all;
  };
  const auto usual = boxes(DrawColumns(LegendXml("r", frame)));
  ASSERT_EQ(usual.size(), 7u);
  const struct {
    S mode, x;
    double left, top;  // of the moved legend, in points
  } cases[] = {{"factor", "-0.25", usual[0].left - 96, usual[0].top + 27},
               {"edge", "0.25", 96, 27},
               {"edge", "-0.25", 0, 27}};
  for (const auto& test : cases) {
    const auto moved = boxes(DrawColumns(LegendXml("r", LayoutXml(test.mode, test.x, "0.1") + frame)));
    ASSERT_EQ(moved.size(), usual.size()) << test.mode;
    const double across = test.left - usual[0].left, down = test.top - usual[0].top;
    for (std::size_t i = 0; i < usual.size(); ++i) {
      const Rect expected{usual[i].left + across, usual[i].top + down, usual[i].width, usual[i].height};
      ExpectNear(moved[i], expected, test.mode + test.x + std::to_string(i));
    }
  }
}

TEST_F(LayoutTest, ColumnsOfALegendAreAsWideAsTheirWidestEntry) {
  Texts names;
  for (int i = 0; i < 60; ++i) names.push_back(i < 5 ? "Northern" : i < 30 ? "Nord" : "N");
  const Drawing drawing =
      Draw(PlotXml("<c:pieChart><c:varyColors val=\"1\"/>" +
                       SeriesXml(0, Numbers(60, 1), "", "", CategoriesXml(names)) + "</c:pieChart>",
                   LegendXml("r")));
  std::map<long, double> columns;  // the right end of each column, by its left end
  const auto keys = BoxesOf(drawing, Role::kLegendKey), texts = BoxesOf(drawing, Role::kLegendEntry);
  ASSERT_EQ(keys.size(), texts.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    double& right = columns[std::lround(keys[i].left * 100)];
    right = std::max(right, texts[i].Right());
  }
  ASSERT_GE(columns.size(), 3u);
  for (auto next = std::next(columns.begin()); next != columns.end(); ++next) {
    EXPECT_NEAR(static_cast<double>(next->first) / 100 - std::prev(next)->second, 9, 0.02);
  }
}

TEST_F(LayoutTest, ThePlotAreaKeepsItsLeastShareOfTheChart) {
  const S title =
      "<c:title><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:rPr sz=\"4000\"/><a:t>Sales of the year</a:t></a:r>"
      "</a:p></c:rich></c:tx></c:title>";
  for (const auto& [width, height] : {std::pair(384.0, 60.0), {60.0, 270.0}, {40.0, 40.0}}) {
    const Drawing drawing = Draw(title + "<c:plotArea>" + ColumnsXml(SeriesXml(0, {1, 2})) + AxesXml() +
                                     "</c:plotArea>" + LegendXml("b"),
                                 "", width, height);
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    EXPECT_GE(plot.width, 0.1 * width - 1e-6) << width;
    EXPECT_GE(plot.height, 0.1 * height - 1e-6) << height;
    EXPECT_TRUE(plot.left >= 0 && plot.top >= 0 && plot.Right() <= width && plot.Bottom() <= height) << width;
  }
}

TEST_F(LayoutTest, TheLabelsOfSmallChartsAreOnThemWhateverTheirUnitIs) {
  const Texts regions = {"Region 1", "Region 2", "Region 3", "Region 4", "Region 5", "Region 6"};
  const S format = "<c:numFmt formatCode=\"#,##0\" sourceLinked=\"0\"/>";
  for (const double most : {7.5, 750.0, 75000.0, 750000.0, 7.5e7}) {
    const S columns = ColumnsXml(SeriesXml(0, {most, most / 2, most / 3, most / 4, most / 5, most / 6}, "",
                                           "", CategoriesXml(regions)));
    const S chart = PlotXml(columns + AxesXml("", format));
    OpenChart(ChartPartXml(chart));
    for (double width = 120; width <= 330; width += 15) {
      for (double height = 75; height <= 210; height += 7.5) {
        EXPECT_EQ(DrawingComplaints(DrawOpen(width, height)), "") << most << " " << width << " " << height;
      }
    }
  }
}

TEST_F(LayoutTest, TitlesWrapKeepTheirRunsAndTakeSpace) {
  const S title =
      "<c:title><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:rPr sz=\"1400\" b=\"0\" u=\"sng\"/>"
      "<a:t>Plain and </a:t></a:r><a:r><a:rPr sz=\"1400\" i=\"1\"><a:solidFill><a:srgbClr val=\"C00000\"/>"
      "</a:solidFill></a:rPr><a:t>red</a:t></a:r></a:p><a:p><a:r><a:t>below</a:t></a:r></a:p></c:rich>"
      "</c:tx></c:title>";
  const Drawing with = DrawColumns("", "", title), without = DrawColumns("");
  EXPECT_EQ(DrawingComplaints(with), "");
  EXPECT_EQ(TextsOf(with, Role::kTitle), (Texts{"Plain and ", "red", "below"}));
  const auto runs = ItemsOf(with, Role::kTitle);
  const auto& plain = std::get<TextItem>(runs[0].content);
  const auto& red = std::get<TextItem>(runs[1].content);
  EXPECT_EQ(plain.font, (render::Font{"Calibri", 14, false, false, true}));
  EXPECT_EQ(red.font, (render::Font{"Calibri", 14, true, true, false}));
  EXPECT_EQ(HexOf(red.color), "#C00000");
  EXPECT_NEAR(plain.Bounds().Right(), red.Bounds().left, 1e-6);
  EXPECT_EQ(plain.anchor.y, red.anchor.y);
  EXPECT_NEAR(BoundsOf(runs[2]).top, plain.Bounds().Bottom(), 1e-6);
  EXPECT_NEAR(BoxOf(with, Role::kTitle).Center().x, 192, 0.01);
  EXPECT_LT(BoxOf(with, Role::kTitle).Bottom(), BoxOf(with, Role::kPlotArea).top);
  EXPECT_LT(BoxOf(without, Role::kPlotArea).top, BoxOf(with, Role::kPlotArea).top);
  // An overlaying title takes no space.
  S overlay = title;
  overlay.insert(overlay.find("</c:title>"), "<c:overlay val=\"1\"/>");
  EXPECT_EQ(BoxOf(DrawColumns("", "", overlay), Role::kPlotArea), BoxOf(without, Role::kPlotArea));
}

TEST_F(LayoutTest, BlankLinesOfATitleHaveTheHeightOfTheirFont) {
  const S above = "<a:r><a:rPr sz=\"1400\"/><a:t>above</a:t></a:r>";
  const S below = "<a:r><a:rPr sz=\"1400\"/><a:t>below</a:t></a:r>";
  const S end = "</a:p><a:p>", format = "<a:pPr><a:defRPr sz=\"2800\"/></a:pPr>";
  const struct {
    const char* what;
    S text;
    double lines;  // the distance of the two texts, in heights of a line
  } cases[] = {
      {"no blank line", above + end + below, 1},
      {"an empty paragraph", above + end + "<a:endParaRPr sz=\"1400\"/>" + end + below, 2},
      {"a small one", above + end + "<a:endParaRPr sz=\"700\"/>" + end + below, 1.5},
      {"one in the format of its paragraph", above + end + format + end + below, 3},
      {"two", above + end + "<a:endParaRPr sz=\"1400\"/>" + end + "<a:endParaRPr sz=\"1400\"/>" + end + below,
       3},
      {"an empty run", above + end + "<a:r><a:t/></a:r><a:endParaRPr sz=\"1400\"/>" + end + below, 2},
      {"two breaks", above + "<a:br/><a:br><a:rPr sz=\"1400\"/></a:br>" + below, 2},
  };
  for (const auto& test : cases) {
    const S title = runtime::Replace(TitleXml("text"), "<a:r><a:t>text</a:t></a:r>", test.text);
    const Drawing drawing = DrawColumns("", "", title);
    EXPECT_EQ(TextsOf(drawing, Role::kTitle), (Texts{"above", "below"})) << test.what;
    const auto lines = BoxesOf(drawing, Role::kTitle);
    ASSERT_EQ(lines.size(), 2u) << test.what;
    EXPECT_NEAR((lines[1].top - lines[0].top) / lines[0].height, test.lines, 0.01) << test.what;
  }
}

TEST_F(LayoutTest, AWordThatIsWiderThanItsLineBreaksInside) {
  struct {
    const char* what;
    S text;
    bool breaks;
  } cases[] = {
      {"a short word", "Revenue", false},
      {"a long word", S(120, 'm'), true},
      {"a long word among others", "Revenue " + S(80, 'm') + "  of all", true},
      {"characters of two bytes",
       "\u00C4" +
           S("\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4"
             "\u00D6\u00DC"
             "\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC"),
       true},
  };
  for (const auto& test : cases) {
    const Drawing drawing = DrawColumns("", "", TitleXml(test.text));
    const Texts lines = TextsOf(drawing, Role::kTitle);
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
    EXPECT_EQ(lines.size() > 1, test.breaks) << test.what;
    S all;
    for (const S& line : lines) all += line;
    EXPECT_EQ(runtime::Replace(all, " ", ""), runtime::Replace(test.text, " ", "")) << test.what;
    for (const S& line : lines) EXPECT_NE(static_cast<unsigned char>(line[0]) & 0xC0, 0x80) << test.what;
  }
}

TEST_F(LayoutTest, DarkStylesHaveTheirFillsAndTexts) {
  const auto newer = [](const S& number) {
    return "<mc:AlternateContent xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\">"
           "<mc:Choice Requires=\"c14\" "
           "xmlns:c14=\"http://schemas.microsoft.com/office/drawing/2007/8/2/chart\"><c14:style val=\"" +
           number + "\"/></mc:Choice></mc:AlternateContent>";
  };
  struct {
    S style, chartArea, plotArea, text, bar;
  } cases[] = {
      {"<c:style val=\"26\"/>", "#FFFFFF", "#FFFFFF", "#000000", "#4F81BD"},
      {"<c:style val=\"34\"/>", "#FFFFFF", "#E7E7E7", "#000000", "#4F81BD"},
      {"<c:style val=\"42\"/>", "#000000", "#3F3F3F", "#FFFFFF", "#4F81BD"},
      {newer("142"), "#000000", "#3F3F3F", "#FFFFFF", "#4F81BD"},
  };
  for (const auto& test : cases) {
    S part = ChartPartXml(PlotXml(GroupXml("barChart", "", SeriesXml(0, {1, 2})) + AxesXml()));
    part.insert(part.find("<c:chart>"), test.style);
    const Drawing drawing = DrawPart(part);
    const auto label = std::get<TextItem>(ItemsOf(drawing, Role::kTickLabel)[0].content);
    EXPECT_EQ(FillOf(ItemsOf(drawing, Role::kChartArea)[0]), test.chartArea) << test.style;
    EXPECT_EQ(FillOf(ItemsOf(drawing, Role::kPlotArea)[0]), test.plotArea) << test.style;
    EXPECT_EQ(HexOf(label.color), test.text) << test.style;
    EXPECT_EQ(FillOf(ItemsOf(drawing, Role::kBar)[0]), test.bar) << test.style;
    EXPECT_EQ(notes_, Texts()) << test.style;
  }
}

TEST_F(LayoutTest, PicturesAsFillsAreStretchedOrTiledInsideOfTheirShapes) {
  Drawing red{8, 4, "", "", {}};
  red.items.push_back(
      {{}, PathItem{render::Path().AddRect({0, 0, 8, 4}), render::SolidFill{{255, 0, 0, 1}}, {}}});
  const S png = MakePng(red, SharedFonts());
  struct {
    const char* what;
    S bytes, mode;
    std::size_t pictures;
    Texts notes;
  } cases[] = {
      {"stretched", png, "<a:stretch><a:fillRect/></a:stretch>", 1, {}},
      {"tiles of ten times the size", png, "<a:tile sx=\"1000000\" sy=\"1000000\"/>", 12, {}},
      {"too many tiles", png, "<a:tile sx=\"1000\" sy=\"1000\"/>", 1, {}},
      {"another format",
       "GIF89a",
       "",
       0,
       {"A picture isn't drawn as a fill because it isn't PNG or is too large; the automatic colour "
        "replaces it."}},
  };
  for (const auto& test : cases) {
    const S fill =
        "<c:spPr xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\">"
        "<a:blipFill><a:blip r:embed=\"rId1\"/>" +
        test.mode + "</a:blipFill></c:spPr>";
    OpenChart(ChartPartXml(PlotXml(GroupXml("barChart", "", SeriesXml(0, {2}, fill)) + AxesXml())));
    xlsx::Package& package = Book().Package();
    package.Add("/xl/media/image1.png", "image/png", test.bytes);
    package.AddRelationship("/xl/charts/chart1.xml", "image", "/xl/media/image1.png");  // rId1
    const Drawing drawing = DrawOpen();
    EXPECT_EQ(notes_, test.notes) << test.what;
    std::size_t pictures = 0;
    for (const Item& item : ItemsOf(drawing, Role::kBar)) {
      const auto* image = std::get_if<render::ImageItem>(&item.content);
      if (image == nullptr) continue;
      ++pictures;
      EXPECT_EQ(image->bytes, test.bytes) << test.what;
      EXPECT_GT(image->place.height, test.pictures == 1 ? 180 : 37) << test.what;
    }
    EXPECT_EQ(pictures, test.pictures) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(LayoutTest, OnlyPicturesAndShapesOnAChartNeedTheWorkbookToBeDrawn) {
  const S named = " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";
  const S picture = "<c:spPr" + named + "><a:blipFill><a:blip r:embed=\"rId1\"/></a:blipFill></c:spPr>";
  const struct {
    const char* what;
    S series, behind;
    bool needs;
  } cases[] = {{"nothing", "", "", false},
               {"a solid fill", "<c:spPr><a:solidFill/></c:spPr>", "", false},
               // The relationships don't exist, so their types can't decide.
               {"a picture", picture, "", true},
               {"shapes", "", "<c:userShapes" + named + " r:id=\"rId7\"/>", true}};
  for (const auto& test : cases) {
    OpenChart(ChartPartXml(PlotXml(GroupXml("barChart", "", SeriesXml(0, {2}, test.series)) + AxesXml()),
                           test.behind));
    render::UndrawnChart chart(*Book().Chart("/xl/charts/chart1.xml"), 384, 270, notes_);
    EXPECT_EQ(chart.NeedsWorkbook(), test.needs) << test.what;
    EXPECT_EQ(ItemsOf(std::move(chart).Draw(SharedFonts(), notes_), Role::kBar).size(), 1u) << test.what;
  }
}

TEST_F(LayoutTest, ATitleWithoutACacheHasTheTextOfItsCell) {
  const Drawing drawing =
      DrawColumns("", "", "<c:title><c:tx><c:strRef><c:f>Sheet1!$A$1</c:f></c:strRef></c:tx></c:title>");
  EXPECT_EQ(TextsOf(drawing, Role::kTitle), Texts{"Region"});
  EXPECT_NE(drawing.title, "");
}

TEST_F(LayoutTest, FillsAndLinesAreTheChartParts) {
  const S look = "<c:spPr>" + SolidXml("00B050", "<a:alpha val=\"50000\"/>") +
                 "<a:ln w=\"25400\" cap=\"rnd\"><a:solidFill><a:schemeClr val=\"accent2\"/></a:solidFill>"
                 "<a:prstDash val=\"dash\"/></a:ln></c:spPr>";
  const S series =
      SeriesXml(0, {1, 2}, look + "<c:dPt><c:idx val=\"1\"/>" + LookXml("<a:noFill/>") + "</c:dPt>");
  const Drawing drawing = Draw(PlotXml(ColumnsXml(series) + AxesXml() + LookXml(SolidXml("FFFF99"))),
                               LookXml(SolidXml("EEEEEE"), "<a:noFill/>"));
  const auto bars = ItemsOf(drawing, Role::kBar);
  const auto& first = std::get<PathItem>(bars[0].content);
  EXPECT_EQ(std::get<render::SolidFill>(first.fill).color, (render::Color{0, 0xB0, 0x50, 0.5}));
  EXPECT_EQ(HexOf(first.stroke.color), "#C0504D");
  EXPECT_EQ(first.stroke.width, 2);
  EXPECT_EQ(first.stroke.dashes, (Numbers{8, 6}));
  EXPECT_EQ(first.stroke.cap, render::LineCap::kRound);
  EXPECT_EQ(FillOf(bars[1]), "none");
  EXPECT_EQ(std::get<PathItem>(bars[1].content).stroke.width,
            2);  // A point inherits the properties that it doesn't set.
  EXPECT_EQ(FillOf(ItemsOf(drawing, Role::kPlotArea)[0]), "#FFFF99");
  const auto area = ItemsOf(drawing, Role::kChartArea)[0];
  EXPECT_EQ(FillOf(area), "#EEEEEE");
  EXPECT_EQ(std::get<PathItem>(area.content).stroke.width, 0);
}

}  // namespace
}  // namespace plotsmith
