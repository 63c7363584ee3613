#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/drawing/TextMetrics.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

TEST(TextMetricsTest, TextsAreAsWideAsTheirFontsMakeThem) {
  const struct {
    const char* text;
    TextFace face;
    double ems;
  } cases[] = {
      {"", {"Arial", 10, false}, 0},
      {"AV.", {"Arial", 10, false}, 0.667 + 0.667 + 0.278},
      {"AV.", {"ARIAL", 20, true}, 0.722 + 0.667 + 0.278},
      {"AV.", {"Calibri", 11, false}, 0.579 + 0.567 + 0.252},
      {"AV.", {"Calibri Light", 11, true}, 0.606 + 0.591 + 0.267},
      {"10%", {"Some Sans", 8, false}, 0.556 + 0.556 + 0.889},
      {"\u00C4\u00FF", {"Arial", 10, false}, 0.667 + 0.5},
      {"\u65E5\u672C", {"Arial", 10, false}, 2},
      {"\U0001F4C8", {"Arial", 10, false}, 1},
      {"\u0416", {"Arial", 10, false}, 0.556},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(TextWidth(c.text, c.face), c.ems * c.face.size, 1e-9) << c.text << " in " << c.face.font;
  }
  // the widths of all letters in the tables, so that every change is noticed
  S letters;
  for (char c = ' '; c <= '~'; ++c) letters += c;
  for (char16_t c = u'\u00A0'; c <= u'\u00FF'; ++c) letters += runtime::ToUtf8(std::u16string(1, c));
  for (const auto& [font, plain, bold] :
       {std::tuple{"Arial", 103876.0, 107382.0}, {"Calibri", 92750.0, 94874.0}}) {
    EXPECT_NEAR(TextWidth(letters, {font, 1000, false}), plain, 1e-6) << font;
    EXPECT_NEAR(TextWidth(letters, {font, 1000, true}), bold, 1e-6) << font;
  }
  EXPECT_NEAR(LineHeight({"Arial", 10, false}), 11.49, 1e-9);
  EXPECT_NEAR(LineHeight({"Calibri", 10, false}), 12.207, 1e-9);
}

const S kBothAxes = "<c:catAx><c:axPos val=\"b\"/></c:catAx><c:valAx><c:axPos val=\"l\"/></c:valAx>";

class ChartGeometryTest : public test::ChartTest {
 protected:
  /// Returns the plot area of a chart of 384 by 270 points with the given layout.
  excel::Ref<excel::PlotArea> PlotAreaOf(const S& beforePlot, const S& layout, const S& axes,
                                         const S& behindPlot) {
    return OpenChart(
               test::ChartPartXml(beforePlot + "<c:plotArea>" + layout +
                                  "<c:barChart><c:ser><c:idx "
                                  "val=\"0\"/><c:tx><c:v>Widgets</c:v></c:tx><c:val><c:numLit><c:pt "
                                  "idx=\"0\"><c:v>1250</c:v></c:pt></c:numLit></c:val></c:ser></c:barChart>" +
                                  axes + "</c:plotArea>" + behindPlot))
        ->PlotArea();
  }
};

/// The number of letters that a title of 20 points in Calibri, bold or regular, has in one line.
constexpr int kTitleLetters = 29;

TEST_F(ChartGeometryTest, TitlesTakeTheSpaceOfTheirText) {
  const S letters(kTitleLetters, 'n');
  const auto title = [](const S& paragraphs) {
    return "<c:title><c:tx><c:rich>" + paragraphs + "</c:rich></c:tx></c:title>";
  };
  const S run = "<a:r><a:rPr sz=\"2000\"/><a:t>";
  const S plain = "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr b=\"0\"/></a:pPr></a:p></c:txPr>";
  const auto depth = [&](const S& text, const S& behind) {
    return OpenChart(test::ChartPartXml(title(text) + "<c:plotArea/>", behind))->PlotArea()->Top() - 7 - 7.2 -
           5;
  };
  const double line = 20 * 1.2207;
  EXPECT_NEAR(depth("<a:p>" + run + letters + "</a:t></a:r></a:p>", ""), 2 * line, 0.01) << "bold by default";
  EXPECT_NEAR(depth("<a:p>" + run + letters + "</a:t></a:r></a:p>", plain), 2 * line, 0.01)
      << "even if the chart's texts aren't bold";
  EXPECT_NEAR(
      depth("<a:p>" + runtime::Replace(run, " sz", " b=\"0\" sz") + letters + "</a:t></a:r></a:p>", ""), line,
      0.01);
  EXPECT_NEAR(depth("<a:p>" + run + "a</a:t></a:r><a:br/>" + run + "b</a:t></a:r></a:p>", ""), 2 * line,
              0.01);
  EXPECT_NEAR(
      depth("<a:p><a:fld id=\"{1}\"><a:rPr sz=\"2000\"/><a:t>" + letters + "</a:t></a:fld></a:p>", ""),
      2 * line, 0.01);
}

TEST_F(ChartGeometryTest, ALegendIsAsWideAsTheWidestOfItsEntries) {
  const auto series = [](int number, const S& name) {
    const S n = std::to_string(number);
    return "<c:ser><c:idx val=\"" + n + "\"/><c:order val=\"" + n + "\"/>" +
           (name.empty() ? "" : "<c:tx><c:v>" + name + "</c:v></c:tx>") +
           "<c:cat><c:strLit><c:ptCount val=\"3\"/><c:pt idx=\"0\"><c:v>AV</c:v></c:pt><c:pt "
           "idx=\"1\"><c:v>AVAV</c:v></c:pt></c:strLit></c:cat><c:val><c:numLit><c:ptCount "
           "val=\"3\"/></c:numLit></c:val></c:ser>";
  };
  const auto deleted = [](int number) {
    return "<c:legendEntry><c:idx val=\"" + std::to_string(number) +
           "\"/><c:delete val=\"1\"/></c:legendEntry>";
  };
  const double pair = 10 * (0.579 + 0.567), key = 24 + 8;
  const struct {
    const char* what;
    S plot, entries;
    double text;
  } cases[] = {
      {"series", "<c:barChart>" + series(0, "AV") + series(1, "AVAVAV") + "</c:barChart>", "", 3 * pair},
      {"one of them deleted", "<c:barChart>" + series(0, "AV") + series(1, "AVAVAV") + "</c:barChart>",
       deleted(1), pair},
      {"one without a name", "<c:barChart>" + series(9, "") + "</c:barChart>", "",
       0.01 * (473 + 498 + 349 + 229 + 498 + 391 + 507 + 507 - 14)},
      {"points of a pie", "<c:pieChart>" + series(0, "AVAVAVAV") + "</c:pieChart>", "", 2 * pair},
      {"points without a text", "<c:pieChart>" + series(0, "AVAVAVAV") + "</c:pieChart>",
       deleted(0) + deleted(1), 5.07},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const auto area = OpenChart(test::ChartPartXml("<c:plotArea>" + c.plot + "</c:plotArea><c:legend>" +
                                                   c.entries + "</c:legend>"))
                          ->PlotArea();
    EXPECT_NEAR(area->Width(), 370 - c.text - key, 0.001);
  }
}

TEST_F(ChartGeometryTest, ScalesFollowTheSettingsOfTheAxis) {
  const auto numbers = [](const S& element, const S& first, const S& second) {
    return "<c:" + element + "><c:numLit><c:ptCount val=\"2\"/><c:pt idx=\"0\"><c:v>" + first +
           "</c:v></c:pt><c:pt idx=\"1\"><c:v>" + second + "</c:v></c:pt></c:numLit></c:" + element + ">";
  };
  const auto series = [](int number, const S& inside) {
    const S n = std::to_string(number);
    return "<c:ser><c:idx val=\"" + n + "\"/><c:order val=\"" + n + "\"/>" + inside + "</c:ser>";
  };
  const S wide = numbers("val", "0", "100"), two = series(0, wide) + series(1, numbers("val", "40", "60"));
  const auto grouping = [](const S& name) { return "<c:grouping val=\"" + name + "\"/>"; };
  const struct {
    const char* what;
    S group, inside, scaling, behind;
    double minimum, maximum;
  } cases[] = {
      {"of the values", "barChart", series(0, wide), "", "", 0, 120},
      {"a manual unit", "barChart", series(0, wide), "", "<c:majorUnit val=\"25\"/>", 0, 125},
      {"an invalid unit", "barChart", series(0, wide), "", "<c:majorUnit val=\"0\"/>", 0, 120},
      {"manual limits", "barChart", series(0, wide), "<c:max val=\"77\"/><c:min val=\"7\"/>", "", 7, 77},
      {"powers", "barChart", series(0, numbers("val", "3", "4000")), "<c:logBase val=\"10\"/>", "", 1, 10000},
      {"side by side", "barChart", grouping("clustered") + two, "", "", 0, 120},
      {"stacked", "barChart", grouping("stacked") + two, "", "", 0, 180},
      {"shares", "barChart", grouping("percentStacked") + two, "", "", 0, 1},
      {"areas", "areaChart", two, "", "", 0, 120},
      {"no space in 3-D", "bar3DChart", series(0, wide), "", "", 0, 100},
      {"across", "scatterChart", series(0, numbers("xVal", "0", "9") + wide), "", "", 0, 120},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const auto axis =
        OpenChart(test::ChartPartXml(
                      "<c:plotArea><c:" + c.group + ">" + c.inside +
                      "<c:axId val=\"1\"/><c:axId val=\"2\"/></c:" + c.group +
                      "><c:catAx><c:axId val=\"1\"/></c:catAx><c:valAx><c:axId val=\"2\"/><c:scaling>" +
                      c.scaling + "</c:scaling>" + c.behind + "</c:valAx></c:plotArea>"))
            ->Axes(excel::xlValue, excel::xlPrimary);
    EXPECT_DOUBLE_EQ(axis->MinimumScale(), c.minimum);
    EXPECT_DOUBLE_EQ(axis->MaximumScale(), c.maximum);
  }
}

TEST_F(ChartGeometryTest, ALegendIsAtItsSideOrAtItsManualPosition) {
  const S x = "<c:x val=\"0.1\"/>", y = "<c:y val=\"0.1\"/>", edge = "<c:xMode val=\"edge\"/>";
  const struct {
    S position, layout;
    double left, top;  ///< as fractions of the chart
  } cases[] = {{"r", "", 0.8, 0.4}, {"l", "", 0.02, 0.4},      {"t", "", 0.4, 0.02},
               {"b", "", 0.4, 0.8}, {"tr", "", 0.8, 0.02},     {"r", x + y, 0.9, 0.5},
               {"t", y, 0.4, 0.12}, {"b", edge + x, 0.1, 0.8}, {"l", edge + x + y, 0.1, 0.5}};
  for (const auto& c : cases) {
    const auto legend = OpenChart(test::ChartPartXml("<c:plotArea/><c:legend><c:legendPos val=\"" +
                                                     c.position + "\"/><c:layout><c:manualLayout>" +
                                                     c.layout + "</c:manualLayout></c:layout></c:legend>"))
                            ->Legend();
    EXPECT_NEAR(legend->Left(), c.left * 384, 1e-9) << c.position << c.layout;
    EXPECT_NEAR(legend->Top(), c.top * 270, 1e-9) << c.position << c.layout;
  }
}

TEST_F(ChartGeometryTest, ALegendAboveOrBelowHasAsManyRowsAsItsEntriesFill) {
  // A key is 24 points wide with its gaps, the chart has 370 points between its insets, and AV takes 11.46.
  for (const auto& [letters, rows] : {std::pair{30, 1}, {31, 2}, {62, 2}, {63, 3}}) {
    S name;
    for (int i = 0; i < letters; ++i) name += "AV";
    const S chart =
        "<c:plotArea><c:barChart><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:tx><c:v>" + name +
        "</c:v></c:tx></c:ser></c:barChart></c:plotArea><c:legend><c:legendPos val=\"t\"/></c:legend>";
    EXPECT_NEAR(OpenChart(test::ChartPartXml(chart))->PlotArea()->Top(), 7 + 8 + rows * 12.207, 0.001)
        << letters;
  }
}

TEST_F(ChartGeometryTest, ThePlotAreaHasItsManualLayoutOrTheFreeSpace) {
  const S title =
      "<c:title><c:tx><c:rich><a:p><a:r><a:rPr sz=\"2000\"/><a:t>T</a:t></a:r></a:p></c:rich></c:tx>"
      "<c:overlay val=\"0\"/></c:title>";
  const auto manual = [](const S& content) {
    return "<c:layout><c:manualLayout>" + content + "</c:manualLayout></c:layout>";
  };
  const S edges = "<c:xMode val=\"edge\"/><c:yMode val=\"edge\"/>";
  const double line = 12.207, titleDepth = 20 * 1.2207 + 7.2 + 5;
  // The width of "1250" in Calibri 10, and a gap.
  const double labels = 4 * 5.07 + 5;
  const double entry = 0.01 * (890 + 229 + 525 + 471 + 498 + 335 + 391 - 4.0) + 24 + 8;
  const S middle = "<c:x val=\"0.25\"/><c:y val=\"0.1\"/><c:w val=\"0.5\"/><c:h val=\"0.5\"/>";
  const struct {
    const char* what;
    Frame frame;
    S before = "", layout = "", behind = "", axes = kBothAxes;
  } cases[] = {
      {"nothing else", {7, 7, 370, 256}, "", "<c:layout/>"},
      {"a title", {7, 7 + titleDepth, 370, 256 - titleDepth}, title},
      {"a title over it", {7, 7, 370, 256}, runtime::Replace(title, "\"0\"", "\"1\"")},
      {"a legend on the right", {7, 7, 370 - entry, 256}, "", "", "<c:legend/>"},
      {"one below", {7, 7, 370, 256 - line - 8}, "", "", "<c:legend><c:legendPos val=\"b\"/></c:legend>"},
      {.what = "axis titles",
       .frame = {7 + line + 7.2, 7, 370 - line - 7.2, 256 - line - 7.2},
       .axes = runtime::Replace(kBothAxes, "\"/></", "\"/><c:title/></")},
      {.what = "of hidden axes",
       .frame = {7, 7, 370, 256},
       .axes = runtime::Replace(kBothAxes, "<c:axPos", "<c:delete val=\"1\"/><c:title/><c:axPos")},
      {"manual", {96, 27, 192, 135}, "", manual(edges + middle)},
      {"manual, without its labels",
       {96 - labels, 27, 192 + labels, 135 + line + 5},
       "",
       manual("<c:layoutTarget val=\"inner\"/>" + edges + middle)},
      {"moved relative to its automatic position", {103, 7, 370, 256}, "", manual("<c:x val=\"0.25\"/>")},
      {"up to an edge",
       {96, 7, 192, 256},
       "",
       manual(edges + "<c:wMode val=\"edge\"/><c:x val=\"0.25\"/><c:w val=\"0.75\"/>")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const auto area = PlotAreaOf(c.before, c.layout, c.axes, c.behind);
    EXPECT_NEAR(area->Left(), c.frame.left, 0.05);
    EXPECT_NEAR(area->Top(), c.frame.top, 0.05);
    EXPECT_NEAR(area->Width(), c.frame.width, 0.05);
    EXPECT_NEAR(area->Height(), c.frame.height, 0.05);
    const double left = area->Left(), top = area->Top(), height = area->Height();
    area->SetWidth(150);
    EXPECT_NEAR(area->Width(), 150, 1e-9);
    area->SetWidth(1000);
    EXPECT_NEAR(area->Left() + area->Width(), 377, 1e-9);
    EXPECT_NEAR(area->Left(), left, 1e-9);
    EXPECT_NEAR(area->Top(), top, 1e-9);
    EXPECT_NEAR(area->Height(), height, 1e-9);
  }
}

}  // namespace
}  // namespace plotsmith::xlsx
