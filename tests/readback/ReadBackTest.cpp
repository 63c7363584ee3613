#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "common/Documents.h"
#include "common/RunVariables.h"
#include "readback/ChartAppearance.h"
#include "readback/ChartReadBack.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Paths.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using S = std::string;

/// Returns a definition after the read-back in one line: "column 3D stacked | title | label axis | value axis
/// | legend | labels | format". Fonts are in the format "Calibri 10 Bold 0".
S Summary(const dom::IXMLDOMDocument2& document) {
  const auto chart = document.documentElement();
  std::map<S, S> persisted;
  for (const auto& persist : chart.selectNodes("auto-persistence/persist")) {
    persisted[GetAttributeText(persist, "property")] = GetAttributeText(persist, "value");
  }
  const auto font = [&](const S& keys) {
    return persisted[keys + "-font-name"] + " " + persisted[keys + "-font-size"] + " " +
           persisted[keys + "-font-style"] + " " + persisted[keys + "-font-color"];
  };
  S line = GetAttributeText(chart, "type");
  for (const auto& attribute : chart.selectNodes("dynamic-attributes/attribute")) {
    line += " " + GetAttributeText(attribute, "setting");
  }
  line += " | " + GetAttributeText(chart, "title");
  for (const auto& [type, keys] : {std::pair<S, S>{"label", "LabelAxis"}, {"value", "ValueAxis"}}) {
    line += " | ";
    for (const auto& axis : chart.selectNodes("axes/axis")) {
      if (GetAttributeText(axis, "type") != type) continue;
      const S text = GetAttributeText(axis, "label");
      line += text.empty() ? "-" : text + ", " + font(keys);
    }
  }
  line += " | " + persisted["legend-visibility"];
  if (persisted["legend-visibility"] == "show") {
    line += persisted.contains("legend-position")
                ? " " + persisted["legend-position"]
                : " at " + persisted["legend-left"] + "," + persisted["legend-top"];
    line += ", " + font("legend");
  }
  line += " |";
  for (const auto& label : chart.selectNodes("data-labels/data-label"))
    line += " " + GetAttributeText(label, "show");
  line += " " + font("label");
  const S format = GetAttributeText(chart, "number-format");
  return format.empty() ? line : line + " | " + format;
}

class ReadBackTest : public test::ChartTest {
 protected:
  static S ReadBack(const excel::Ref<excel::Chart>& chart) {
    auto document = NewXMLDocument();
    document.loadXML("<chart/>");
    RevEngineerChart(chart, document);
    return Summary(document);
  }
};

/// Returns the expected read-back of each chart by file and number, from tests/readback/corpus.tsv.
std::map<S, S> ExpectedOfCorpus() {
  std::map<S, S> expected;
  std::ifstream file(fs::path(test::kSourceFolder) / "tests" / "readback" / "corpus.tsv");
  for (S line; std::getline(file, line);) {
    const auto tab = line.find('\t');
    expected[line.substr(0, tab)] = line.substr(tab + 1);
  }
  return expected;
}

TEST_F(ReadBackTest, ChartsAsExcelAndOthersSavedThem) {
  std::error_code absent;
  const auto folder = fs::path(test::kCorpusFolder) / "charts";
  if (!fs::is_directory(folder, absent)) GTEST_SKIP() << "the corpus is missing";
  auto expected = ExpectedOfCorpus();
  for (const auto& file : fs::directory_iterator(folder)) {
    OpenFile(file.path().string());
    int number = 0;
    for (const auto& sheet : Book().Tabs().All()) {
      if (!sheet->worksheet) continue;
      const auto shapes = sheet->worksheet->Shapes();
      for (int i = 1; i <= shapes->Count(); ++i) {
        if (shapes->Item(i)->Type() != excel::msoChart) continue;
        const S key = file.path().filename().string() + " " + std::to_string(++number);
        EXPECT_EQ(ReadBack(ChartOf(shapes->Item(i))), expected[key]) << key;
        expected.erase(key);
      }
    }
  }
  for (const auto& [key, line] : expected) ADD_FAILURE() << key << " isn't there any more";
}

struct Case {
  const char* what;
  S chart;        ///< The contents of c:chart.
  S expected;     ///< The summary, or a part of it.
  S behind = "";  ///< The elements after c:chart, in c:chartSpace.
};

S Axes(const S& category = "", const S& value = "") {
  return "<c:catAx><c:axId val=\"1\"/>" + category + "</c:catAx><c:valAx><c:axId val=\"2\"/>" + value +
         "</c:valAx>";
}
S Bar(const S& insideGroup, const S& axes = Axes()) {
  return "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>" + insideGroup +
         "<c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart>" + axes + "</c:plotArea>";
}
S Ser(const S& inside = "", int index = 0) {
  const S i = std::to_string(index);
  return "<c:ser><c:idx val=\"" + i + "\"/><c:order val=\"" + i + "\"/>" + inside +
         "<c:val><c:numRef><c:f>Data1!$C$2:$C$4</c:f><c:numCache><c:ptCount "
         "val=\"3\"/></c:numCache></c:numRef></c:val></c:ser>";
}
S Props(const S& properties) {
  return "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr " + properties + "</a:defRPr></a:pPr></a:p></c:txPr>";
}
S FillXml(const S& color) { return "<a:solidFill>" + color + "</a:solidFill>"; }
S Rich(const S& runs, const S& defaults = "") {
  return "<c:tx><c:rich><a:bodyPr/><a:p>" + defaults + runs + "</a:p></c:rich></c:tx>";
}
S TextRun(const S& text, const S& properties = "/>") {
  return "<a:r><a:rPr " + properties + (properties == "/>" ? "" : "</a:rPr>") + "<a:t>" + text +
         "</a:t></a:r>";
}

TEST_F(ReadBackTest, EquivalentChartParts) {
  const S one = Bar(Ser()), two = Bar(Ser() + Ser("", 1)), shown = "<c:showVal val=\"1\"/>";
  const S untitled = "<c:autoTitleDeleted val=\"1\"/>";
  const auto title = [](const S& text) { return "<c:title>" + text + "</c:title>"; };
  const auto ofCell = [](const S& text) {
    return "<c:tx><c:strRef><c:strCache><c:pt idx=\"0\"><c:v>" + text +
           "</c:v></c:pt></c:strCache></c:strRef></c:tx>";
  };
  const auto withAxes = [&](const S& category, const S& value = "") {
    return untitled + Bar(Ser(), Axes(category, value));
  };
  const S label = title(Rich(TextRun("L")));
  const S small = "<a:pPr><a:defRPr sz=\"800\" b=\"0\"/></a:pPr>";
  const auto legend = [&](const S& inside) { return untitled + two + "<c:legend>" + inside + "</c:legend>"; };
  const auto colored = [&](const S& color) { return legend(Props(">" + FillXml(color))); };
  const auto labels = [&](const S& inside) { return Bar(Ser("<c:dLbls>" + inside + "</c:dLbls>")); };
  const auto sized = [&](const S& size, int index) {
    return Ser("<c:dLbls>" + Props("sz=\"" + size + "\">") + shown + "</c:dLbls>", index);
  };
  const auto format = [](const S& isLinked) {
    return "<c:numFmt formatCode=\"0.00\" sourceLinked=\"" + isLinked + "\"/>";
  };
  const Case cases[] = {
      // titles
      {"none, and one series without a name", one, "column |  | - | - | hide |"},
      {"the name of the only series", Bar(Ser("<c:tx><c:v>Amount</c:v></c:tx>")), "column | Amount |"},
      {"the name from its cell", Bar(Ser(ofCell("A &amp; B"))), "column | A & B |"},
      {"a removed title", untitled + Bar(Ser("<c:tx><c:v>Amount</c:v></c:tx>")), "column |  |"},
      {"no name for several series", Bar(Ser("<c:tx><c:v>A</c:v></c:tx>") + Ser("", 1)), "column |  |"},
      {"a title without a text", title("<c:overlay val=\"0\"/>") + two, "column | Chart Title |"},
      {"runs, breaks and fields",
       title(Rich(TextRun("Sales ") + TextRun("2025") + "<a:br/><a:fld id=\"x\"><a:t>now</a:t></a:fld>")) +
           one,
       "column | Sales 2025\nnow |"},
      {"paragraphs", title(Rich(TextRun("One") + "</a:p><a:p>" + TextRun("Two"))) + one,
       "column | One\nTwo |"},
      {"a title of a cell", title(ofCell("Cell")) + one, "column | Cell |"},
      // axis titles and their fonts
      {"Excel's defaults", withAxes(label), "| L, Calibri 10 Bold 0 | - |"},
      {"size and colour of the whole chart", withAxes(label), "| L, Georgia 14 Bold Italic 255 |",
       Props("sz=\"1400\" i=\"1\">" + FillXml("<a:srgbClr val=\"FF0000\"/>") +
             "<a:latin typeface=\"Georgia\"/>")},
      {"the paragraph's defaults", withAxes(title(Rich(TextRun("L"), small))), "| L, Calibri 8 Regular 0 |"},
      {"a run overrides its paragraph",
       withAxes("", title(Rich(TextRun("V", "sz=\"1150\" b=\"1\"><a:latin typeface=\"+mj-lt\"/>"), small))),
       "| V, Cambria 11.5 Bold 0 |"},
      {"mixed fonts: the standard font, no colour, no style",
       withAxes(title(Rich(TextRun("A", "sz=\"800\" b=\"0\">") +
                           TextRun("B", "sz=\"900\" i=\"1\"><a:latin typeface=\"Georgia\"/>")))),
       "| AB, Calibri 11  0 |"},
      {"a title of a cell has text properties", withAxes(title(ofCell("L") + Props("sz=\"700\">"))),
       "| L, Calibri 7 Bold 0 |"},
      {"an axis that is hidden still has its title", withAxes("<c:delete val=\"1\"/>" + label),
       "| L, Calibri 10 Bold 0 |"},
      {"a date axis is the label axis",
       untitled + Bar(Ser(), "<c:dateAx><c:axId val=\"1\"/>" + title(Rich(TextRun("Day"))) +
                                 "</c:dateAx><c:valAx><c:axId val=\"2\"/></c:valAx>"),
       "| Day, Calibri"},
      {"axes of the secondary group don't count",
       untitled + "<c:plotArea><c:barChart><c:barDir val=\"col\"/>" + Ser() +
           "<c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart><c:barChart><c:barDir val=\"col\"/>" +
           Ser("", 1) + "<c:axId val=\"3\"/><c:axId val=\"4\"/></c:barChart>" +
           Axes("", title(Rich(TextRun("Left")))) + "<c:valAx><c:axId val=\"4\"/>" +
           title(Rich(TextRun("Right"))) + "</c:valAx><c:catAx><c:axId val=\"3\"/></c:catAx></c:plotArea>",
       "column |  | - | Left, Calibri"},
      // colours
      {"of the theme, lighter",
       colored("<a:schemeClr val=\"tx1\"><a:lumMod val=\"65000\"/><a:lumOff val=\"35000\"/></a:schemeClr>"),
       "show -4152, Calibri 10 Regular 5855577 |"},
      {"of the chart's own colour map", colored("<a:schemeClr val=\"tx1\"/>"),
       "Calibri 10 Regular 12419407 |", "<c:clrMapOvr tx1=\"accent1\"/>"},
      {"of the system", colored("<a:sysClr val=\"window\" lastClr=\"FEFEFE\"/>"),
       "Calibri 10 Regular 16711422 |"},
      {"by name", colored("<a:prstClr val=\"navy\"/>"), "Calibri 10 Regular 8388608 |"},
      {"modified with invalid numbers",
       colored("<a:srgbClr val=\"336699\"><a:shade val=\"1e300\"/><a:shade val=\"1e300\"/><a:shade "
               "val=\"1e300\"/><a:shade val=\"0\"/></a:srgbClr>"),
       "Calibri 10 Regular 0 |"},
      // the legend
      {"its position", legend("<c:legendPos val=\"b\"/>"), "show -4107,"},
      {"only its size is set by hand",
       legend("<c:legendPos val=\"t\"/><c:layout><c:manualLayout><c:w val=\"0.3\"/></c:manualLayout>"
              "</c:layout>"),
       "show -4160,"},
      {"dragged",
       legend("<c:layout><c:manualLayout><c:xMode val=\"edge\"/><c:yMode val=\"edge\"/><c:x val=\"0.5\"/>"
              "<c:y val=\"0.25\"/></c:manualLayout></c:layout>"),
       "show at 192,67.5,"},
      {"an entry that is red",
       legend("<c:legendEntry><c:idx val=\"1\"/>" +
              Props("sz=\"1000\">" + FillXml("<a:srgbClr val=\"FF0000\"/>")) + "</c:legendEntry>"),
       "show -4152, Calibri 10 Regular  |"},
      {"a deleted entry", legend("<c:legendEntry><c:idx val=\"1\"/><c:delete val=\"1\"/></c:legendEntry>"),
       "show -4152, Calibri 10 Regular 0 |"},
      // labels
      {"of the series", labels(Props("sz=\"800\" b=\"1\">") + shown), "| values Calibri 8 Bold 0"},
      {"of the group", Bar(Ser() + "<c:dLbls>" + Props("sz=\"800\">") + shown + "</c:dLbls>"),
       "| values Calibri 8 Regular 0"},
      {"of the group, but removed by the series",
       Bar(Ser("<c:dLbls><c:delete val=\"1\"/></c:dLbls>") + "<c:dLbls>" + shown + "</c:dLbls>"),
       "| Arial 9 Regular 0"},
      {"nothing shown", labels("<c:showVal val=\"0\"/><c:showPercent val=\"0\"/>"), "| Arial 9 Regular 0"},
      {"a single point's",
       labels("<c:dLbl><c:idx val=\"1\"/>" + Props("sz=\"2000\">") + shown +
              "</c:dLbl><c:showVal val=\"0\"/>"),
       "| values Calibri 9 Regular 0"},
      {"value with category", labels(shown + "<c:showCatName val=\"1\"/>"), "| values Calibri"},
      {"a value element without an attribute is true", labels("<c:showVal/>"), "| values Calibri"},
      {"names only", labels("<c:showSerName val=\"1\"/>"), "| Calibri 10 Regular 0"},
      {"the least frequent font, the first of several",
       Bar(sized("800", 0) + sized("700", 1) + sized("800", 2) + sized("600", 3)),
       "| values Calibri 7 Regular 0"},
      // the number format
      {"linked", Bar(Ser(), Axes("", format("1"))), "Arial 9 Regular 0"},
      {"typed by hand", Bar(Ser(), Axes("", format("0"))), "Arial 9 Regular 0 | 0.00"},
      {"not of a hidden axis", Bar(Ser(), Axes("", "<c:delete val=\"1\"/>" + format("0"))),
       "Arial 9 Regular 0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const S said = ReadBack(OpenChart(test::ChartPartXml(c.chart, c.behind)));
    EXPECT_NE(said.find(c.expected), S::npos) << said << "\n  should have " << c.expected;
    EXPECT_TRUE(said.ends_with(c.expected) || c.expected.find("Arial 9") == S::npos) << said;
  }
  EXPECT_TRUE(Messages().empty()) << Messages()[0];
}

TEST_F(ReadBackTest, SomeChartsKeepTheFormat) {
  const S chart = Bar(Ser(), Axes("", "<c:numFmt formatCode=\"0.00\" sourceLinked=\"0\"/>"));
  struct {
    const char *type, *setting, *format;
  } const cases[] = {{"column", "stacked", "0.00"},
                     {"column", "100%", "#"},
                     {"strategic bucket", "", "0.00"},
                     {"pie", "", "#"},
                     {"bubble", "", "#"},
                     {"unknown", "", "#"}};
  for (const auto& c : cases) {
    auto document = NewXMLDocument();
    ASSERT_TRUE(document.loadXML(S("<chart number-format=\"#\" type=\"") + c.type + "\">" +
                                 test::Settings({c.setting}) + "</chart>"));
    RevEngineerNumberFormat(OpenChart(test::ChartPartXml(chart)), document);
    EXPECT_EQ(GetAttributeText(document.documentElement(), "number-format"), c.format) << c.type << c.setting;
  }
}

TEST_F(ReadBackTest, TypesOfCharts) {
  const auto group = [](const S& name, const S& inside, const S& series = "") {
    return "<c:plotArea><c:" + name + ">" + inside + Ser(series) + "</c:" + name + "></c:plotArea>";
  };
  const auto bars = [&](const S& direction, const S& grouping) {
    return "<c:barDir val=\"" + direction + "\"/><c:grouping val=\"" + grouping + "\"/>";
  };
  const auto shape = [](const S& name) { return "<c:shape val=\"" + name + "\"/>"; };
  const S noLine = "<c:spPr><a:ln><a:noFill/></a:ln></c:spPr>",
          dash = "<c:marker><c:symbol val=\"dash\"/></c:marker>";
  struct {
    S chart, type;
    int number;
  } const cases[] = {
      {group("barChart", ""), "column", 51},
      {group("barChart", bars("col", "stacked")), "column stacked", 52},
      {group("barChart", bars("col", "percentStacked")), "column stacked 100%", 53},
      {group("barChart", bars("bar", "clustered")), "bar", 57},
      {group("barChart", bars("bar", "stacked")), "bar stacked", 58},
      {group("barChart", bars("bar", "percentStacked")), "bar stacked 100%", 59},
      {group("bar3DChart", bars("col", "clustered")), "column 3D", 54},
      {group("bar3DChart", bars("col", "stacked")), "column 3D stacked", 55},
      {group("bar3DChart", bars("col", "percentStacked")), "column 3D stacked 100%", 56},
      {group("bar3DChart", bars("bar", "clustered")), "bar 3D", 60},
      {group("bar3DChart", bars("bar", "percentStacked")), "bar 3D stacked 100%", 62},
      {group("bar3DChart", bars("col", "standard")), "column", -4100},
      {group("bar3DChart", bars("bar", "stacked")), "bar 3D stacked", 61},
      {group("bar3DChart", bars("col", "clustered") + shape("cylinder")), "unknown", 92},
      {group("bar3DChart", bars("bar", "stacked"), shape("coneToMax")), "unknown", 103},
      {group("areaChart", ""), "area", 1},
      {group("areaChart", "<c:grouping val=\"stacked\"/>"), "area stacked", 76},
      {group("areaChart", "<c:grouping val=\"percentStacked\"/>"), "area stacked 100%", 77},
      {group("area3DChart", ""), "area 3D", -4098},
      {group("area3DChart", "<c:grouping val=\"stacked\"/>"), "area 3D stacked", 78},
      {group("area3DChart", "<c:grouping val=\"percentStacked\"/>"), "area 3D stacked 100%", 79},
      {group("pieChart", ""), "pie", 5},
      {group("pieChart", "", "<c:explosion val=\"10\"/>"), "pie exploded", 69},
      {group("pieChart", "",
             "<c:dPt><c:idx val=\"0\"/><c:explosion val=\"10\"/></c:dPt><c:dPt><c:idx val=\"1\"/></c:dPt>"),
       "pie", 5},
      {group("pie3DChart", ""), "pie 3D", -4102},
      {group("pie3DChart", "", "<c:explosion val=\"10\"/>"), "pie 3D exploded", 70},
      {group("bubbleChart", "<c:bubble3D val=\"1\"/>"), "bubble 3D", 87},
      {group("bubbleChart", "", "<c:bubble3D val=\"0\"/>"), "bubble", 15},
      {group("lineChart", "<c:grouping val=\"standard\"/><c:marker val=\"1\"/>"), "unknown", 65},
      {group("lineChart", "<c:grouping val=\"stacked\"/>"), "unknown", 63},
      {group("lineChart", "<c:marker val=\"1\"/>", noLine), "unknown", -4111},
      {group("doughnutChart", ""), "unknown", -4120},
      {group("scatterChart", "<c:scatterStyle val=\"smoothMarker\"/>"), "unknown", 72},
      {group("scatterChart", "<c:scatterStyle val=\"lineMarker\"/>", noLine), "unknown", -4169},
      {group("radarChart", "<c:radarStyle val=\"filled\"/>"), "unknown", 82},
      {group("radarChart", "<c:radarStyle val=\"marker\"/>"), "unknown", 81},
      {group("radarChart", "<c:radarStyle val=\"standard\"/>"), "unknown", -4151},
      {group("ofPieChart", "<c:ofPieType val=\"bar\"/>"), "unknown", 71},
      {group("ofPieChart", ""), "unknown", 68},
      {group("doughnutChart", "", "<c:explosion val=\"1\"/>"), "unknown", 80},
      {group("line3DChart", ""), "unknown", -4101},
      {group("lineChart", "<c:grouping val=\"percentStacked\"/>"), "unknown", 64},
      {group("lineChart", "<c:grouping val=\"stacked\"/><c:marker val=\"1\"/>"), "unknown", 66},
      {group("lineChart", "<c:grouping val=\"percentStacked\"/><c:marker val=\"1\"/>"), "unknown", 67},
      {group("scatterChart", "<c:scatterStyle val=\"smooth\"/>"), "unknown", 73},
      {group("scatterChart", "<c:scatterStyle val=\"lineMarker\"/>"), "unknown", 74},
      {group("scatterChart", "<c:scatterStyle val=\"line\"/>"), "unknown", 75},
      {group("scatterChart", "<c:scatterStyle val=\"lineMarker\"/>", "<c:smooth val=\"1\"/>"), "unknown", 72},
      {group("scatterChart", "<c:scatterStyle val=\"none\"/>"), "unknown", -4169},
      {group("surface3DChart", ""), "unknown", 83},
      {group("surface3DChart", "<c:wireframe val=\"1\"/>"), "unknown", 84},
      {group("surfaceChart", ""), "unknown", 85},
      {group("surfaceChart", "<c:wireframe val=\"1\"/>"), "unknown", 86},
      {group("stockChart", Ser() + Ser()), "unknown", 88},
      {group("stockChart", Ser() + Ser() + Ser()), "unknown", 89},
      {group("bar3DChart", bars("col", "standard") + shape("pyramid")), "unknown", 112},
      {group("bar3DChart", bars("col", "percentStacked") + shape("cone")), "unknown", 101},
      {group("bar3DChart", bars("bar", "clustered") + shape("cylinder")), "unknown", 95},
      {"<c:plotArea><c:barChart>" + bars("col", "stacked") + Ser() + Ser("", 1) +
           "</c:barChart><c:lineChart><c:marker val=\"1\"/>" + Ser(noLine + dash, 2) +
           "</c:lineChart></c:plotArea>",
       "strategic bucket", -4111},
      {"<c:plotArea><c:barChart>" + bars("col", "stacked") + Ser() +
           "</c:barChart><c:lineChart><c:marker val=\"1\"/>" + Ser(dash, 1) + "</c:lineChart></c:plotArea>",
       "strategic bucket", -4111},
      {"<c:plotArea><c:barChart>" + bars("col", "stacked") + Ser() + "</c:barChart><c:lineChart>" +
           Ser("", 1) + "</c:lineChart></c:plotArea>",
       "unknown", -4111},
      {"<c:plotArea><c:barChart>" + bars("col", "clustered") + Ser() + "</c:barChart><c:barChart>" +
           bars("col", "clustered") + Ser("", 1) + "</c:barChart></c:plotArea>",
       "column", 51},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type + " " + std::to_string(c.number));
    const auto chart = OpenChart(test::ChartPartXml(c.chart));
    EXPECT_EQ(chart->ChartType(), c.number);
    auto document = NewXMLDocument();
    document.loadXML("<chart/>");
    RevEngineerChartType(chart, document);
    S said = Summary(document);
    EXPECT_EQ(said.substr(0, said.find(" |")), c.type);
  }
}

/// Entries of `auto-persistence` from "size=10 name=Calibri", each key behind `keys` and a hyphen.
S Persisted(const S& keys, const S& values) {
  S xml;
  std::istringstream words(values);
  for (S word; words >> word;) {
    const auto equals = word.find('=');
    xml += "<persist property=\"" + keys + "-" + word.substr(0, equals) + "\" value=\"" +
           word.substr(equals + 1) + "\"/>";
  }
  return xml;
}

TEST_F(ReadBackTest, TheWholeDefinitionAfterwards) {
  const S red = FillXml("<a:srgbClr val=\"FF0000\"/>"), serif = "<a:latin typeface=\"Georgia\"/>";
  const S shown = "<c:showVal val=\"1\"/>", shares = "<c:showPercent val=\"1\"/>";
  const S axes = Axes("<c:title>" + Rich(TextRun("Regions")) + "</c:title>");
  const auto bucket = [&](const S& valueLabels) {
    const S ends = "<c:axId val=\"1\"/><c:axId val=\"2\"/>";
    return "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:grouping val=\"stacked\"/>" + Ser() + ends +
           "</c:barChart><c:lineChart>" +
           Ser("<c:spPr><a:ln><a:noFill/></a:ln></c:spPr><c:marker><c:symbol val=\"dash\"/></c:marker>"
               "<c:dLbls>" +
                   valueLabels + shown + "</c:dLbls>",
               1) +
           ends + "</c:lineChart>" + Axes() + "</c:plotArea>";
  };
  const S none = "size= name= color= style= autoscale=";
  const S usual = "size=10 name=Calibri color=0 style=Bold autoscale=True";
  const S untitled = Persisted("LabelAxis-font", none) + Persisted("ValueAxis-font", none);
  const S labels = Persisted("label-font",
                             "name=Arial style=Regular size=9 color=0 background-color=-4105 autoscale=True");
  const S noBucket = Persisted("bucket-label-font", "name= size= color= style= autoscale="),
          noLegend = Persisted("legend", "visibility=hide");
  const auto persistence = [](const S& entries) {
    return "<auto-persistence>" + entries + "</auto-persistence>";
  };
  const S noSettings = "<dynamic-attributes/>";
  const S axesWithoutTitles =
      "<axes><axis type=\"label\" label=\"\" sticky=\"yes\"/><axis type=\"value\" label=\"\" "
      "sticky=\"yes\"/></axes>";
  const S bucketChart = "<chart title=\"\" type=\"strategic bucket\" number-format=\"\">" + noSettings;
  const struct {
    const char* what;
    S before, chart, after;
  } cases[] = {
      {"old values are replaced, and an unchanged axis title isn't sticky",
       "<chart title=\"Old\" type=\"pie\" number-format=\"0\"><auto-persistence><persist/></auto-persistence>"
       "<dynamic-attributes><attribute/></dynamic-attributes><axes><axis type=\"value\" label=\"Amounts\"/>"
       "<axis type=\"label\" label=\"Regions\" LabelAxis-font-name=\"Calibri\" sticky=\"no\"/></axes>"
       "<data-labels manual-labels=\"yes\"><data-label show=\"percentages\"/></data-labels></chart>",
       Bar(Ser("<c:dLbls>" + Props("sz=\"800\">" + red) + shown + "</c:dLbls>"), axes) +
           "<c:legend><c:legendPos val=\"t\"/></c:legend>",
       "<chart title=\"\" type=\"column\" number-format=\"0\">" + noSettings +
           persistence(Persisted("LabelAxis-font", usual) + Persisted("ValueAxis-font", none) +
                       Persisted("legend", "visibility=show position=-4160") +
                       Persisted("legend-font", "name=Calibri style=Regular size=10 color=0 autoscale=True") +
                       Persisted("label-font",
                                 "name=Calibri style=Regular size=8 color=255 "
                                 "background-color=-4105 autoscale=True") +
                       noBucket) +
           "<axes><axis type=\"label\" label=\"Regions\" sticky=\"no\"/><axis type=\"value\" label=\"\" "
           "sticky=\"yes\"/></axes><data-labels manual-labels=\"yes\"><data-label show=\"values\"/>"
           "</data-labels></chart>"},
      {"a definition without fonts means the default fonts",
       "<chart><axes><axis type=\"label\" label=\"Regions\" LabelAxis-font-name=\"Calibri\"/></axes></chart>",
       Bar(Ser(), axes),
       "<chart title=\"\" type=\"column\" number-format=\"\">" + noSettings +
           persistence(Persisted("LabelAxis-font", usual) + Persisted("ValueAxis-font", none) + noLegend +
                       labels + noBucket) +
           "<axes><axis type=\"label\" label=\"Regions\" sticky=\"\"/><axis type=\"value\" label=\"\" "
           "sticky=\"yes\"/></axes><data-labels/></chart>"},
      {"a pie has no axes, and their settings are kept",
       "<chart><axes><axis type=\"label\" label=\"L\"/></axes><data-labels/></chart>",
       "<c:plotArea><c:pie3DChart>" + Ser("<c:dLbls>" + shares + "</c:dLbls>") +
           "</c:pie3DChart></c:plotArea>",
       "<chart title=\"\" type=\"pie\"><axes><axis type=\"label\" label=\"L\"/></axes>" +
           test::Settings({"3D"}) +
           persistence(noLegend +
                       Persisted("label-font",
                                 "name=Calibri style=Regular size=10 color=0 "
                                 "background-color=-4105 autoscale=True") +
                       noBucket) +
           "<data-labels><data-label show=\"percentages\"/></data-labels></chart>"},
      {"the bucket values have their own font", "<chart/>", bucket(Props("sz=\"1300\" i=\"1\">" + red)),
       bucketChart +
           persistence(
               untitled + noLegend + labels +
               Persisted("bucket-label-font", "name=Calibri size=13 color=255 style=Italic autoscale=True")) +
           axesWithoutTitles + "<data-labels/></chart>"},
      {"bucket values with different fonts", "<chart/>",
       bucket("<c:dLbl><c:idx val=\"1\"/>" + Props("sz=\"1300\" i=\"1\">" + red + serif) + shown +
              "</c:dLbl>"),
       bucketChart +
           persistence(
               untitled + noLegend + labels +
               Persisted("bucket-label-font", "name=Arial size=9 color=16777215 style=Bold autoscale=True")) +
           axesWithoutTitles + "<data-labels/></chart>"},
      {"labels with different fonts", "<chart/>",
       Bar(Ser("<c:dLbls><c:dLbl><c:idx val=\"1\"/>" + Props("sz=\"1300\" i=\"1\">" + red + serif) + shown +
               "</c:dLbl>" + shown + "</c:dLbls>")),
       "<chart title=\"\" type=\"column\" number-format=\"\">" + noSettings +
           persistence(untitled + noLegend + labels + noBucket) + axesWithoutTitles +
           "<data-labels><data-label show=\"values\"/></data-labels></chart>"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    auto document = NewXMLDocument();
    ASSERT_TRUE(document.loadXML(c.before));
    RevEngineerChart(OpenChart(test::ChartPartXml(c.chart)), document);
    EXPECT_EQ(document.xml(), c.after);
  }
  EXPECT_EQ(Messages(), std::vector<S>{});
}

TEST_F(ReadBackTest, EachProcedureReportsUnderItsName) {
  auto document = NewXMLDocument();
  document.loadXML("<chart/>");
  const excel::Ref<excel::Chart> nothing;
  RevEngineerChartTitle(nothing, document);
  RevEngineerChartType(nothing, document);
  RevEngineerNumberFormat(nothing, document);
  RevEngineerAxisLabels(nothing, document);
  RevEngineerChartLegend(nothing, document);
  RevEngineerChartDataLabels(nothing, document);
  EXPECT_FALSE(IsStrBuckChart(nothing));
  std::vector<S> expected;
  for (const char* name :
       {"RevEngineerChartTitle", "RevEngineerChartType", "RevEngineerNumberFormat", "RevEngineerAxisLabels",
        "RevEngineerChartLegend", "RevEngineerChartDataLabels", "IsStrBuckChart"}) {
    expected.push_back(S("Brindle Plotsmith: PSRevEngineerChart.") + name +
                       "\nObject variable or With block variable not set");
  }
  EXPECT_EQ(Messages(), expected);
}

}  // namespace
}  // namespace plotsmith
