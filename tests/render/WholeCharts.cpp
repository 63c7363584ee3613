#include "tests/render/WholeCharts.h"

#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith::test {
namespace {

S Scaling(const S& more) { return "<c:scaling>" + more + "</c:scaling>"; }
S Labels(const S& which, const S& more = "") {
  return "<c:dLbls>" + more + "<c:" + which + " val=\"1\"/></c:dLbls>";
}
S Marker(const S& symbol, const S& size = "6") {
  return "<c:marker><c:symbol val=\"" + symbol + "\"/><c:size val=\"" + size + "\"/></c:marker>";
}
S With(S xml, const S& from, const S& to) { return runtime::Replace(xml, from, to); }
/// Categories of two levels.
S Levels() {
  return LevelsXml(5, {{{0, "Jan"}, {1, "Feb"}, {2, "Mar"}, {3, "Apr"}, {4, "May"}},
                       {{0, "North"}, {2, "A long name of the south and all of its many islands"}}});
}

const S kNames = CategoriesXml({"North", "East", "South", "West"});
const S kLegend = "<c:legend><c:legendPos val=\"r\"/></c:legend>";
const S kGrid = "<c:majorGridlines/>", kBothGrids = "<c:majorGridlines/><c:minorGridlines/>";
const S kMarks = "<c:majorTickMark val=\"cross\"/><c:minorTickMark val=\"in\"/>";
const S kMarksIn = "<c:majorTickMark val=\"in\"/><c:minorTickMark val=\"out\"/>";

}  // namespace

std::map<std::string, Whole> WholeCharts() {
  const S valueAxes = ValueAxesXml(kGrid, kGrid);
  const S dates = NumbersXml("cat", {45292, 45296, 45294}, "m-d");
  const S reversed = Scaling("<c:orientation val=\"maxMin\"/>");
  const S slices = "<c:pieChart><c:varyColors val=\"1\"/>";
  const auto ofPie = [](const S& type) {
    return "<c:ofPieChart><c:ofPieType val=\"" + type + "\"/><c:varyColors val=\"1\"/>";
  };
  const S moved =
      "<c:dLbl><c:idx val=\"1\"/><c:layout><c:manualLayout><c:x val=\"0.2\"/><c:y val=\"-0.1\"/>"
      "</c:manualLayout></c:layout><c:showVal val=\"1\"/></c:dLbl><c:dLbl><c:idx val=\"2\"/><c:layout>"
      "<c:manualLayout><c:x val=\"0.4\"/></c:manualLayout></c:layout><c:showVal val=\"1\"/></c:dLbl>";
  const S wide = CategoriesXml({"Northern hemisphere", "Equator", "Southern hemisphere"});
  Numbers small = {40, 30};
  for (int i = 0; i < 14; ++i) small.push_back(1.5 + i % 3);
  Numbers crowded(12, 1);  // small slices at the top and at the bottom
  crowded.push_back(60);
  crowded.insert(crowded.end(), 9, 1.5);
  crowded.push_back(70);
  const S errors =
      "<c:errBars><c:errDir val=\"y\"/><c:errBarType val=\"both\"/><c:errValType val=\"fixedVal\"/>"
      "<c:val val=\"2\"/></c:errBars>";
  const S trend =
      "<c:trendline><c:trendlineType val=\"linear\"/><c:forward val=\"1\"/><c:backward val=\"0.5\"/>"
      "<c:dispRSqr val=\"1\"/><c:dispEq val=\"1\"/></c:trendline>";
  const S shadow =
      "<c:spPr><a:solidFill><a:srgbClr val=\"00B050\"/></a:solidFill><a:ln w=\"25400\"><a:solidFill>"
      "<a:srgbClr val=\"7030A0\"/></a:solidFill><a:prstDash val=\"dash\"/></a:ln><a:effectLst>"
      "<a:outerShdw blurRad=\"40000\" dist=\"38100\" dir=\"2700000\"><a:srgbClr val=\"000000\"/>"
      "</a:outerShdw></a:effectLst></c:spPr>";
  S dashes;
  int row = 0;
  for (const char* dash : {"solid", "dash", "dashDot", "dot", "lgDash", "lgDashDot", "lgDashDotDot",
                           "sysDash", "sysDashDot", "sysDashDotDot", "sysDot"}) {
    dashes +=
        SeriesXml(row, {1.0 * row, 2.0 * row},
                  LookXml("", SolidXml("7030A0") + "<a:prstDash val=\"" + S(dash) + "\"/>") + Marker("none"));
    ++row;
  }
  const S stops =
      "<a:gsLst><a:gs pos=\"0\"><a:srgbClr val=\"FF0000\"/></a:gs><a:gs pos=\"100000\"><a:srgbClr "
      "val=\"0000FF\"><a:alpha val=\"50000\"/></a:srgbClr></a:gs><a:gs pos=\"40000\"><a:srgbClr "
      "val=\"00FF00\"/></a:gs></a:gsLst>";
  const S fills =
      SeriesXml(0, {1}, LookXml("<a:gradFill>" + stops + "<a:lin ang=\"2700000\"/></a:gradFill>")) +
      SeriesXml(1, {2},
                LookXml("<a:gradFill>" + stops +
                        "<a:path path=\"circle\"><a:fillToRect l=\"20000\" t=\"40000\" "
                        "r=\"60000\" b=\"20000\"/></a:path></a:gradFill>")) +
      SeriesXml(
          2, {3},
          LookXml("<a:pattFill prst=\"ltUpDiag\"><a:fgClr><a:srgbClr val=\"FF0000\"/></a:fgClr><a:bgClr>"
                  "<a:srgbClr val=\"FFFFFF\"/></a:bgClr></a:pattFill>")) +
      SeriesXml(3, {4},
                LookXml(SolidXml("00B050",
                                 "<a:alpha val=\"80000\"/><a:alphaMod val=\"50000\"/><a:alphaOff "
                                 "val=\"10000\"/>"),
                        SolidXml("C00000"))) +
      SeriesXml(4, {5}, LookXml("<a:noFill/>", "<a:noFill/>")) +
      SeriesXml(5, {6}, LookXml(SolidXml("FFFF00"), "<a:round/>"));
  const auto point = [](int index, const S& more) {
    return "<c:dPt><c:idx val=\"" + std::to_string(index) + "\"/>" + more + "</c:dPt>";
  };
  const auto legend = [](const S& place, const S& more = "") {
    return "<c:legend><c:legendPos val=\"" + place + "\"/>" + more + "</c:legend>";
  };
  const auto layout = [](const S& target, const S& mode) {
    return LayoutXml(mode, "0.1", "0.2", "<c:w val=\"0.5\"/><c:h val=\"0.4\"/>" + target);
  };
  const S two = ColumnsXml(SeriesXml(0, {5, 3}) + SeriesXml(1, {1, 2}));
  const S twenty = Scaling("<c:max val=\"20\"/><c:min val=\"-10\"/>");
  const auto crossing = [&](const S& group, const S& element, const S& more = "") {
    return PlotXml(group + AxesXml(element + more, twenty));
  };
  const S both = SeriesXml(0, {-5, 2, 15}, Labels("showVal"));
  const auto placed = [](const Texts& places, const Numbers& values, const S& more) {
    S series;
    for (std::size_t i = 0; i < places.size(); ++i) {
      series += SeriesXml(static_cast<int>(i), values,
                          more + Labels("showVal", "<c:dLblPos val=\"" + places[i] + "\"/>"));
    }
    return series;
  };
  const Texts barPlaces = {"outEnd", "inEnd", "ctr", "inBase"}, markerPlaces = {"t", "b", "l", "r", "ctr"};
  const auto scatter = [&](const S& style, const S& marker) {
    return PlotXml(GroupXml("scatterChart", style.empty() ? "" : "<c:scatterStyle val=\"" + style + "\"/>",
                            PointsXml(0, {1, 2}, {2, 1}, marker)) +
                   ValueAxesXml());
  };
  const S rightAngles = "<c:rotX val=\"15\"/><c:rotY val=\"20\"/><c:rAngAx val=\"1\"/>";
  const S perspective =
      "<c:rotX val=\"25\"/><c:rotY val=\"230\"/><c:depthPercent val=\"150\"/><c:rAngAx val=\"0\"/>"
      "<c:perspective val=\"60\"/>";
  const S three = SeriesXml(0, {1, 3}) + SeriesXml(1, {2, 6}) + SeriesXml(2, {3, -2});
  const auto bodies = [&](const S& grouping, const S& direction, const S& last = "") {
    return GroupXml("bar3DChart",
                    "<c:barDir val=\"" + direction + "\"/><c:grouping val=\"" + grouping + "\"/>", three,
                    last) +
           AxesXml("", "", direction == "bar");
  };
  const auto surface = [&](const S& element, const S& first, const S& view) {
    const S ridge = SeriesXml(0, {0, 0, 10}) + SeriesXml(1, {30, 15, 20}) + SeriesXml(2, {0, 0, 5});
    const S formats = "<c:bandFmts><c:bandFmt><c:idx val=\"1\"/>" + LookXml(SolidXml("FFC000")) +
                      "</c:bandFmt></c:bandFmts>";
    return Plot3DXml(view,
                     GroupXml(element, first, ridge, formats + "<c:axId val=\"3\"/>") +
                         AxesXml("", "<c:majorUnit val=\"10\"/>") + DepthAxisXml(),
                     kLegend);
  };
  const auto dated = [](const Numbers& serials, const S& axis) {
    return PlotXml(
        LinesXml(SeriesXml(0, Numbers(serials.size(), 2), "", "", NumbersXml("cat", serials, "m-d")),
                 "<c:marker val=\"1\"/>") +
        DateAxesXml("<c:numFmt formatCode=\"m-d\" sourceLinked=\"0\"/>" + axis));
  };
  const auto named = [](std::size_t count, const S& name, const S& axis = "", bool lying = false) {
    Texts names;
    for (std::size_t i = 1; i <= count; ++i) names.push_back(name + std::to_string(i));
    return PlotXml(ColumnsXml(SeriesXml(0, Numbers(count, 5), "", "", CategoriesXml(names)), "", "clustered",
                              lying ? "bar" : "col") +
                   AxesXml(axis, "", lying));
  };
  const auto table = [&](const S& more, const S& axis = "") {
    return PlotXml(
        ColumnsXml(SeriesXml(0, {1.5, 20}, "", "", CategoriesXml({"North", "A long name of the south"})) +
                   SeriesXml(1, {3, kNoValue})) +
        AxesXml(axis) + "<c:dTable>" + more + "</c:dTable>");
  };
  const S boldTable =
      "<c:spPr><a:ln w=\"19050\"><a:solidFill><a:srgbClr val=\"0070C0\"/></a:solidFill></a:ln></c:spPr>"
      "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr sz=\"800\" b=\"1\"/></a:pPr></a:p></c:txPr>";
  const auto cast = [](const S& attributes) {
    return LookXml(
        SolidXml("00B050") + "<a:effectLst><a:outerShdw " + attributes +
        "><a:srgbClr val=\"112233\"><a:alpha val=\"40000\"/></a:srgbClr></a:outerShdw></a:effectLst>");
  };
  S shadows;
  int casting = 0;
  for (const S alignment : {"tl", "t", "tr", "l", "ctr", "r", "bl", "b", "br"})
    shadows +=
        SeriesXml(casting++, {2}, cast("sx=\"200000\" sy=\"50%\" kx=\"2700000\" algn=\"" + alignment + "\""));
  const S far = cast("dist=\"38100\" dir=\"2700000\" blurRad=\"50800\"");
  const auto errorBars = [](const S& way, const S& more) {
    return "<c:errBars><c:errDir val=\"" + way +
           "\"/><c:errBarType val=\"both\"/><c:errValType val=\"fixedVal\"/>" + more + "<c:val val=\"1\"/>" +
           LookXml("", SolidXml("00B050")) + "</c:errBars>";
  };
  const S disc = "<c:pie3DChart><c:varyColors val=\"1\"/>";
  return {
      {"bars-percent", PlotXml(ColumnsXml(SeriesXml(0, {10, 25, 0.5}) + SeriesXml(1, {30, 5, 12}), "",
                                          "percentStacked", "bar") +
                               AxesXml("", "", true))},
      {"bars-stacked",
       PlotXml(ColumnsXml(SeriesXml(0, {10, 25, 0.5}) + SeriesXml(1, {30, -5, 12}),
                          "<c:gapWidth val=\"50\"/><c:overlap val=\"100\"/>", "stacked", "bar") +
               AxesXml("", "", true))},
      {"dates-by-days", dated({45322, 45323, 45412},
                              "<c:baseTimeUnit val=\"days\"/><c:majorUnit val=\"1\"/>"
                              "<c:majorTimeUnit val=\"months\"/>")},
      {"dates-by-months", dated({45292, 45352, 45383}, "")},
      {"dates-by-years", dated({45292, 45352, 46023}, "<c:baseTimeUnit val=\"years\"/>")},
      {"dates-of-years", dated({45323, 45352, 46054},
                               "<c:baseTimeUnit val=\"months\"/><c:majorUnit val=\"1\"/>"
                               "<c:majorTimeUnit val=\"years\"/>")},
      {"dates-that-are-none", dated({1, 1e9}, "")},
      {"errors-both-ways",
       PlotXml(GroupXml("scatterChart", "<c:scatterStyle val=\"marker\"/>",
                        PointsXml(0, {2, 5}, {4, 3},
                                  errorBars("y", "") + errorBars("x", "<c:noEndCap val=\"1\"/>"))) +
               ValueAxesXml())},
      {"errors-of-shares",
       PlotXml(ColumnsXml(SeriesXml(0, {2, 4}, errors) + SeriesXml(1, {2, 6}, errors), "", "percentStacked") +
               AxesXml())},
      {"labels-beside-bars",
       named(12, "Northern hemisphere and the islands around it, as it was counted in the year ", "", true)},
      {"labels-flat-by-hand", named(40, "Septembers", BodyXml("rot=\"0\""))},
      {"labels-skipped", named(200, "")},
      {"labels-skipped-by-hand", named(10, "Q", "<c:tickLblSkip val=\"3\"/>")},
      {"labels-turned-by-hand", named(5, "Q", BodyXml("rot=\"5400000\""))},
      {"labels-upright", named(24, "Septembers")},
      {"moving-average",
       PlotXml(ColumnsXml(SeriesXml(0, {1, 3, 5, kNoValue, 9, 7}, With(trend, "linear", "movingAvg"))) +
               AxesXml())},
      {"shadows",
       TitleXml("Sales") + "<c:autoTitleDeleted val=\"0\"/><c:plotArea>" +
           ColumnsXml(SeriesXml(0, {3}, far + With(Labels("showVal"), "<c:dLbls>", "<c:dLbls>" + far))) +
           LinesXml(SeriesXml(1, {2}, With(Marker("circle"), "</c:marker>", far + "</c:marker>"))) +
           AxesXml() + far + "</c:plotArea><c:legend>" + far + "</c:legend>"},
      {"shadows-aligned", PlotXml(ColumnsXml(shadows) + AxesXml())},
      {"table-reversed", table("<c:showOutline val=\"1\"/>" + boldTable, reversed)},
      {"table-with-columns", table("<c:showVertBorder val=\"1\"/><c:showKeys val=\"1\"/>")},
      {"table-with-rows", table("<c:showHorzBorder val=\"1\"/>")},
      {"3d-areas", Plot3DXml(perspective, GroupXml("area3DChart", "<c:grouping val=\"standard\"/>", three,
                                                   "<c:axId val=\"3\"/>") +
                                              AxesXml() + DepthAxisXml())},
      {"3d-areas-stacked",
       Plot3DXml(rightAngles, GroupXml("area3DChart", "<c:grouping val=\"stacked\"/>", three) + AxesXml())},
      {"3d-bars", Plot3DXml(rightAngles, bodies("clustered", "bar"))},
      {"3d-columns", Plot3DXml(rightAngles, bodies("clustered", "col",
                                                   "<c:gapWidth val=\"60\"/><c:gapDepth val=\"30\"/>"))},
      {"3d-columns-behind-each-other",
       Plot3DXml(perspective, GroupXml("bar3DChart", "<c:barDir val=\"col\"/><c:grouping val=\"standard\"/>",
                                       three, "<c:axId val=\"3\"/>") +
                                  AxesXml() + DepthAxisXml())},
      {"3d-columns-of-levels",
       Plot3DXml(rightAngles, GroupXml("bar3DChart", "<c:barDir val=\"col\"/>",
                                       SeriesXml(0, {5, 3, 4, 1, 2}, "", "", Levels())) +
                                  AxesXml())},
      {"3d-columns-percent", Plot3DXml(rightAngles, bodies("percentStacked", "col"))},
      {"3d-lines-of-blanks", Plot3DXml(perspective, GroupXml("line3DChart", "<c:grouping val=\"standard\"/>",
                                                             SeriesXml(0, {1, 2, kNoValue, 3, 4}) +
                                                                 SeriesXml(1, {kNoValue, 3, 2, kNoValue, 5}),
                                                             "<c:axId val=\"3\"/>") +
                                                        AxesXml(kGrid, kBothGrids) + DepthAxisXml())},
      {"3d-reversed",
       Plot3DXml("<c:rotX val=\"-20\"/><c:rotY val=\"120\"/><c:perspective val=\"40\"/>",
                 GroupXml("bar3DChart", "<c:barDir val=\"col\"/>", SeriesXml(0, {5, -3}, "", "", kNames)) +
                     AxesXml(reversed + kGrid + kMarks, reversed + kBothGrids + kMarks) + "<c:spPr>" +
                     SolidXml("EEEEEE") + "</c:spPr>")},
      {"3d-cones", Plot3DXml(rightAngles, bodies("stacked", "col", "<c:shape val=\"coneToMax\"/>"))},
      {"3d-cylinders", Plot3DXml(perspective, bodies("clustered", "col", "<c:shape val=\"cylinder\"/>"))},
      {"3d-pie", Plot3DXml("<c:rotX val=\"30\"/><c:rotY val=\"40\"/>",
                           disc + SeriesXml(0, {1, 1, 2}, Labels("showVal", "<c:dLblPos val=\"outEnd\"/>")) +
                               "</c:pie3DChart>")},
      {"3d-pie-exploded",
       Plot3DXml("<c:rotX val=\"60\"/>",
                 disc + SeriesXml(0, {1, 1, 2}, "<c:explosion val=\"40\"/>") + "</c:pie3DChart>")},
      {"3d-pyramids", Plot3DXml(rightAngles, bodies("stacked", "bar", "<c:shape val=\"pyramid\"/>"))},
      {"3d-surface",
       surface("surface3DChart", "", "<c:rotX val=\"20\"/><c:rotY val=\"30\"/><c:perspective val=\"20\"/>")},
      {"3d-surface-contours", surface("surfaceChart", "", "")},
      {"3d-surface-wires", surface("surfaceChart", "<c:wireframe val=\"1\"/>", "")},
      {"crossing-areas", crossing(GroupXml("areaChart", "", both), "<c:crossesAt val=\"5\"/>")},
      {"crossing-areas-stacked",
       crossing(GroupXml("areaChart", "<c:grouping val=\"stacked\"/>", both), "<c:crossesAt val=\"5\"/>")},
      {"crossing-columns", crossing(ColumnsXml(both), "<c:crossesAt val=\"5\"/>")},
      {"crossing-columns-stacked", crossing(ColumnsXml(both, "", "stacked"), "<c:crossesAt val=\"5\"/>")},
      {"crossing-drop-lines", crossing(LinesXml(both, "<c:dropLines/>"), "<c:crossesAt val=\"5\"/>")},
      {"crossing-least", crossing(ColumnsXml(both), "<c:crosses val=\"min\"/>")},
      {"crossing-low-labels", crossing(ColumnsXml(both), "", "<c:tickLblPos val=\"low\"/>")},
      {"crossing-most", crossing(ColumnsXml(both), "<c:crosses val=\"max\"/>")},
      {"labels-of-bars",
       PlotXml(ColumnsXml(placed(barPlaces, {20, -60}, ""), "", "clustered", "bar") + AxesXml("", "", true))},
      {"labels-of-columns", PlotXml(ColumnsXml(placed(barPlaces, {20, -60}, "")) + AxesXml())},
      {"labels-of-markers",
       PlotXml(LinesXml(placed(markerPlaces, {40, 50, 45}, Marker("dot", "8"))) + AxesXml())},
      {"levels-as-one-text", PlotXml(ColumnsXml(SeriesXml(0, {5, 3, 4, 1, 2}, "", "", Levels())) +
                                     AxesXml("<c:noMultiLvlLbl val=\"1\"/><c:majorTickMark val=\"none\"/>"))},
      {"levels-on-marks", PlotXml(ColumnsXml(SeriesXml(0, {5, 3, 4, 1, 2}, "", "", Levels())) +
                                  AxesXml("", "<c:crossBetween val=\"midCat\"/>"))},
      {"radar-standard",
       PlotXml(GroupXml("radarChart", "<c:radarStyle val=\"standard\"/>", SeriesXml(0, {10, 5, 2})) +
               AxesXml())},
      {"scatter-default", scatter("", Marker("square"))},
      {"scatter-line", scatter("line", Marker("none"))},
      {"scatter-marker", scatter("marker", Marker("square"))},
      {"stacked-overlap",
       PlotXml(ColumnsXml(SeriesXml(0, {4, -2}) + SeriesXml(1, {1, 3}) + SeriesXml(2, {1, -3}),
                          "<c:overlap val=\"40\"/>", "stacked") +
               AxesXml())},
      {"layout-by-hand", PlotXml(layout("<c:layoutTarget val=\"inner\"/>", "edge") + two +
                                     AxesXml(TitleXml("X"), TitleXml("Y")),
                                 legend("r", layout("", "edge")))},
      {"layout-by-hand-of-all", PlotXml(layout("", "edge") + two + AxesXml(TitleXml("X"), TitleXml("Y")),
                                        legend("r", layout("", "factor") + "<c:overlay val=\"1\"/>"))},
      {"legend-corner", PlotXml(two + AxesXml(), legend("tr"))},
      {"legend-left", PlotXml(two + AxesXml(), legend("l"))},
      {"legend-top", TitleXml("All sales") + "<c:autoTitleDeleted val=\"0\"/><c:plotArea>" + two + AxesXml() +
                         "</c:plotArea>" + legend("t")},
      {"line-points",
       PlotXml(LinesXml(SeriesXml(0, {1, 3, 2, 4},
                                  Marker("square", "8") +
                                      point(1, Marker("diamond", "12") + LookXml("", SolidXml("FF0000"))) +
                                      point(2, LookXml("", "<a:noFill/>"))) +
                        SeriesXml(1, {2, 2, 2, 2}, "")) +
                   AxesXml(),
               kLegend)},
      {"looks-of-fills", PlotXml(ColumnsXml(fills) + AxesXml(), kLegend)},
      {"looks-of-lines", PlotXml(LinesXml(dashes) + AxesXml())},
      {"ring-of-one", PlotXml("<c:doughnutChart>" + SeriesXml(0, {3, 0}, "<c:explosion val=\"25\"/>") +
                              SeriesXml(1, {1, 2}) + "<c:holeSize val=\"60\"/></c:doughnutChart>")},
      {"bar-of-pie",
       PlotXml(ofPie("bar") + SeriesXml(0, {40, 30, 5, 4, 3}, Labels("showVal"), "", kNames) +
                   "<c:gapWidth val=\"100\"/><c:splitType val=\"val\"/><c:splitPos val=\"10\"/><c:serLines/>"
                   "</c:ofPieChart>",
               kLegend)},
      {"pie-of-pie",
       PlotXml(ofPie("pie") +
               SeriesXml(0, {40, 30, 5, 4, 3},
                         "<c:explosion val=\"20\"/>" + Labels("showPercent", "<c:dLblPos val=\"outEnd\"/>")) +
               "<c:gapWidth val=\"80\"/><c:secondPieSize val=\"50\"/><c:serLines/></c:ofPieChart>")},
      {"pie-of-one",
       PlotXml(slices + SeriesXml(0, {3}, Labels("showVal", "<c:dLblPos val=\"ctr\"/>")) + "</c:pieChart>")},
      {"pie-exploded", PlotXml(slices +
                               SeriesXml(0, {3, 2, 1},
                                         "<c:explosion val=\"20\"/>" + point(1, "<c:explosion val=\"50\"/>") +
                                             Labels("showCatName", "<c:dLblPos val=\"outEnd\"/>")) +
                               "</c:pieChart>")},
      {"radar-filled",
       PlotXml(GroupXml("radarChart", "<c:radarStyle val=\"filled\"/>",
                        SeriesXml(0, {10, 5, 2.5, 7.5, 1}, Labels("showVal")) + SeriesXml(1, {2, 3, 4})) +
               AxesXml("", Scaling("<c:max val=\"9\"/><c:min val=\"1\"/>") + kGrid))},
      {"shapes", {"<c:plotArea/>", AllFormsXml(false)}},
      {"shapes-adjusted", {"<c:plotArea/>", AllFormsXml(true)}},
      {"shapes-with-texts", {"<c:plotArea/>", ShapeTextsXml()}},
      {"area-stacked", PlotXml(GroupXml("areaChart", "<c:grouping val=\"stacked\"/>",
                                        SeriesXml(0, {2, 4, 3}, Labels("showVal")) +
                                            SeriesXml(1, {3, kNoValue, 5}, Labels("showSerName"))) +
                                   AxesXml(kMarks, "<c:crossBetween val=\"midCat\"/>" + kMarksIn),
                               kLegend)},
      {"bars-of-levels",
       PlotXml(ColumnsXml(SeriesXml(0, {5, 3, 4, 1, 2}, "", "", Levels()), "", "clustered", "bar") +
               AxesXml(kMarks, kBothGrids + kMarks, true))},
      {"bars-reversed",
       PlotXml(ColumnsXml(SeriesXml(0, {5, -3}, Labels("showVal"), "", kNames) +
                              SeriesXml(1, {1, 2}, Labels("showVal", "<c:dLblPos val=\"inBase\"/>")),
                          "<c:gapWidth val=\"50\"/><c:overlap val=\"-20\"/>", "clustered", "bar") +
               AxesXml(reversed + "<c:tickLblPos val=\"low\"/>",
                       reversed + kGrid + "<c:tickLblPos val=\"high\"/>" + kMarks, true))},
      {"bubbles",
       PlotXml(
           GroupXml("bubbleChart", "",
                    With(PointsXml(0, {1, 2, 3}, {3, 1, 2}, Labels("showVal", "<c:dLblPos val=\"r\"/>")),
                         "</c:ser>", NumbersXml("bubbleSize", {4, 1, -2}) + "</c:ser>"),
                    "<c:bubbleScale val=\"60\"/><c:showNegBubbles val=\"1\"/><c:sizeRepresents val=\"w\"/>") +
           valueAxes)},
      {"columns-labels",
       PlotXml(ColumnsXml(
                   SeriesXml(0, {20, -5, 80}, Labels("showVal", "<c:showLegendKey val=\"1\"/>"), "", kNames) +
                   SeriesXml(1, {10, 5, 40}, Labels("showCatName", "<c:dLblPos val=\"ctr\"/>")) +
                   SeriesXml(2, {1, 5, 4}, Labels("showSerName", "<c:dLblPos val=\"inEnd\"/>"))) +
                   AxesXml(TitleXml("Regions") + kMarksIn, TitleXml("Sales") + kBothGrids + kMarks),
               "<c:legend><c:legendPos val=\"b\"/></c:legend>")},
      {"columns-of-levels",
       PlotXml(ColumnsXml(SeriesXml(0, {5, 3, 4, 1, 2}, "", "", Levels())) + AxesXml(kGrid + kMarks))},
      {"columns-percent",
       PlotXml(ColumnsXml(SeriesXml(0, {5, 3, 0}) + SeriesXml(1, {1, -2, 0}),
                          "<c:overlap val=\"100\"/><c:serLines/>", "percentStacked") +
               AxesXml("", Scaling("<c:orientation val=\"maxMin\"/>") + "<c:crosses val=\"max\"/>"))},
      {"columns-shadow", PlotXml(ColumnsXml(SeriesXml(0, {5, 3}, shadow)) + AxesXml(), kLegend)},
      {"columns-slanted",
       PlotXml(ColumnsXml(SeriesXml(
                   0, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, "", "",
                   CategoriesXml({"Januaries", "Februaries", "Marches", "Aprils", "Mays", "Junes", "Julies",
                                  "Augusts", "Septembers", "Octobers", "Novembers", "Decembers"}))) +
               AxesXml("", kGrid))},
      {"columns-table",
       PlotXml(ColumnsXml(SeriesXml(0, {20, 5}, "", "", kNames) + SeriesXml(1, {1, 2})) + AxesXml() +
               "<c:dTable><c:showHorzBorder val=\"1\"/><c:showVertBorder val=\"1\"/><c:showOutline "
               "val=\"1\"/><c:showKeys val=\"1\"/></c:dTable>")},
      {"columns-upright", PlotXml(ColumnsXml(SeriesXml(0, Numbers(30, 2), "", "", wide)) +
                                  AxesXml(BodyXml("rot=\"-5400000\"") +
                                          "<c:tickLblSkip val=\"2\"/><c:tickMarkSkip val=\"3\"/>" + kMarks))},
      {"columns-wrapped",
       PlotXml(ColumnsXml(SeriesXml(0, {1, 2, 3}, "", "", wide)) +
               AxesXml("<c:crosses val=\"max\"/>" + kMarks, "<c:crossesAt val=\"2\"/>" + kMarksIn))},
      {"dates-days",
       PlotXml(LinesXml(SeriesXml(0, {1, 3, 2}, Marker("circle"), "", dates)) +
               DateAxesXml("<c:numFmt formatCode=\"m-d\" sourceLinked=\"0\"/>" + kGrid + kMarks))},
      {"dates-midcat",
       PlotXml(GroupXml("areaChart", "", SeriesXml(0, {1, 3, 2}, "", "", dates)) +
               DateAxesXml("<c:numFmt formatCode=\"m-d\" sourceLinked=\"0\"/>" + kMarks + kGrid,
                           "<c:crossBetween val=\"midCat\"/>"))},
      {"doughnut",
       PlotXml("<c:doughnutChart><c:varyColors val=\"1\"/>" + SeriesXml(0, {3, 2, 1}, Labels("showPercent")) +
                   SeriesXml(1, {1, 1, 1}, "<c:explosion val=\"10\"/>" + Labels("showVal")) +
                   "<c:firstSliceAng val=\"30\"/><c:holeSize val=\"40\"/></c:doughnutChart>",
               kLegend)},
      {"errors-and-trends",
       PlotXml(ColumnsXml(SeriesXml(0, {2, 4, 3, 6}, trend + errors)) + AxesXml(), kLegend)},
      {"lines-gaps",
       PlotXml(
           LinesXml(SeriesXml(0, {1, kNoValue, 3, 2}, Marker("none")) +
                    SeriesXml(1, {3, kNoValue, kNoValue, 1},
                              Marker("diamond") + Labels("showVal", "<c:dLblPos val=\"t\"/>"),
                              "<c:smooth val=\"1\"/>") +
                    SeriesXml(2, {2, 2.5, 2, 4}, Marker("x") + Labels("showVal", "<c:dLblPos val=\"b\"/>"),
                              "<c:smooth val=\"1\"/>")) +
               AxesXml("", kGrid),
           "<c:dispBlanksAs val=\"span\"/>")},
      {"lines-stock",
       PlotXml(
           LinesXml(
               SeriesXml(0, {2, 8, 5}) + SeriesXml(1, {9, 9, 9}) + SeriesXml(2, {6, 3, kNoValue}),
               "<c:dropLines/><c:hiLowLines/><c:upDownBars><c:gapWidth val=\"100\"/><c:upBars/><c:downBars>" +
                   LookXml(SolidXml("C00000")) + "</c:downBars></c:upDownBars>") +
           AxesXml("<c:tickLblPos val=\"none\"/>", kGrid))},
      {"lines-stacked",
       PlotXml(LinesXml(SeriesXml(0, {1, 2}, Marker("square", "12")) + SeriesXml(1, {3, 4}, Marker("plus")),
                        "", "stacked") +
                   AxesXml(),
               kLegend)},
      {"pie-inside",
       PlotXml(slices +
                   SeriesXml(0, {30, -20, 50}, Labels("showVal", "<c:dLblPos val=\"inEnd\"/>"), "", kNames) +
                   "</c:pieChart>",
               kLegend)},
      {"pie-moved", PlotXml(slices +
                            SeriesXml(0, {30, 20, 50},
                                      Labels("showVal", moved + "<c:dLblPos val=\"outEnd\"/>"), "", kNames) +
                            "</c:pieChart>")},
      {"pie-leaders", PlotXml(slices +
                              SeriesXml(0, {30, 20, 50},
                                        With(Labels("showVal", moved + "<c:dLblPos val=\"outEnd\"/>"),
                                             "</c:dLbls>", "<c:showLeaderLines val=\"1\"/></c:dLbls>"),
                                        "", kNames) +
                              "</c:pieChart>")},
      {"pie-crowded",
       PlotXml(slices +
               SeriesXml(0, crowded,
                         With(Labels("showCatName", "<c:dLblPos val=\"outEnd\"/><c:showVal val=\"1\"/>"),
                              "</c:dLbls>", "<c:showLeaderLines val=\"1\"/></c:dLbls>"),
                         "", CategoriesXml(Texts(crowded.size(), "A slice"))) +
               "<c:firstSliceAng val=\"340\"/></c:pieChart>")},
      {"pie-small-slices",
       PlotXml(slices + SeriesXml(0, small, Labels("showPercent", "<c:dLblPos val=\"bestFit\"/>")) +
               "<c:firstSliceAng val=\"300\"/></c:pieChart>")},
      {"radar", PlotXml(GroupXml("radarChart", "<c:radarStyle val=\"marker\"/>",
                                 SeriesXml(0, {10, 5, 2.5, 7.5}, Labels("showVal"), "", kNames) +
                                     SeriesXml(1, {2, kNoValue, 3, 4})) +
                        AxesXml("", kGrid + kMarks))},
      {"scatter-logarithmic",
       PlotXml(GroupXml("scatterChart", "<c:scatterStyle val=\"smoothMarker\"/>",
                        PointsXml(0, {1, 10, 200, -1}, {0.5, 40, 3, 2}, Marker("star") + trend,
                                  "<c:smooth val=\"1\"/>")) +
               ValueAxesXml(Scaling("<c:logBase val=\"10\"/>") + kBothGrids + kMarks,
                            Scaling("<c:logBase val=\"10\"/><c:min val=\"0.1\"/>") + kBothGrids + kMarks))},
      {"scatter-outside",
       PlotXml(GroupXml("scatterChart", "",
                        PointsXml(0, {-2, 3, 5, 9, 4}, {2, 12, 5, 5, -9}, Marker("triangle") + errors)) +
               ValueAxesXml(
                   Scaling("<c:max val=\"6\"/><c:min val=\"0\"/>"),
                   Scaling("<c:max val=\"10\"/><c:min val=\"0\"/>") +
                       "<c:dispUnits><c:builtInUnit val=\"hundreds\"/><c:dispUnitsLbl/></c:dispUnits>"))},
  };
}

}  // namespace plotsmith::test
