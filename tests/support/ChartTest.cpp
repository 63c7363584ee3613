#include "tests/support/ChartTest.h"

#include <map>
#include <pugixml.hpp>
#include <set>
#include <sstream>

#include "tests/support/ErrorOf.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::test {
namespace {

/// The children of each element according to the schema: once, at most once ("?"), any number ("*"), or one
/// of several ("a/b"). The series of each group are a type of their own.
const std::map<std::string, std::string> kTypes = {
    {"chart",
     "title? autoTitleDeleted? pivotFmts? view3D? floor? sideWall? backWall? plotArea legend? plotVisOnly? "
     "dispBlanksAs? showDLblsOverMax? extLst?"},
    {"view3D", "rotX? hPercent? rotY? depthPercent? rAngAx? perspective? extLst?"},
    {"plotArea",
     "layout? "
     "areaChart/area3DChart/barChart/bar3DChart/lineChart/pieChart/pie3DChart/scatterChart/bubbleChart "
     "areaChart/area3DChart/barChart/bar3DChart/lineChart/pieChart/pie3DChart/scatterChart/bubbleChart* "
     "valAx/catAx/dateAx/serAx* dTable? spPr? extLst?"},
    {"areaChart", "grouping? varyColors? ser* dLbls? dropLines? axId axId extLst?"},
    {"area3DChart", "grouping? varyColors? ser* dLbls? dropLines? gapDepth? axId axId axId? extLst?"},
    {"barChart", "barDir grouping? varyColors? ser* dLbls? gapWidth? overlap? serLines* axId axId extLst?"},
    {"bar3DChart",
     "barDir grouping? varyColors? ser* dLbls? gapWidth? gapDepth? shape? axId axId axId? extLst?"},
    {"lineChart",
     "grouping varyColors? ser* dLbls? dropLines? hiLowLines? upDownBars? marker? smooth? axId axId extLst?"},
    {"pieChart", "varyColors? ser* dLbls? firstSliceAng? extLst?"},
    {"pie3DChart", "varyColors? ser* dLbls? extLst?"},
    {"scatterChart", "scatterStyle varyColors? ser* dLbls? axId axId extLst?"},
    {"bubbleChart",
     "varyColors? ser* dLbls? bubble3D? bubbleScale? showNegBubbles? sizeRepresents? axId axId extLst?"},
    {"areaChart ser",
     "idx order tx? spPr? pictureOptions? dPt* dLbls? trendline* errBars* cat? val? extLst?"},
    {"barChart ser",
     "idx order tx? spPr? invertIfNegative? pictureOptions? dPt* dLbls? trendline* errBars? cat? val? shape? "
     "extLst?"},
    {"lineChart ser",
     "idx order tx? spPr? marker? dPt* dLbls? trendline* errBars? cat? val? smooth? extLst?"},
    {"pieChart ser", "idx order tx? spPr? explosion? dPt* dLbls? cat? val? extLst?"},
    {"scatterChart ser",
     "idx order tx? spPr? marker? dPt* dLbls? trendline* errBars* xVal? yVal? smooth? extLst?"},
    {"bubbleChart ser",
     "idx order tx? spPr? invertIfNegative? dPt* dLbls? trendline* errBars* xVal? yVal? bubbleSize? "
     "bubble3D? extLst?"},
    {"ser marker", "symbol? size? spPr? extLst?"},
    {"dLbls",
     "dLbl* delete? numFmt? spPr? txPr? dLblPos? showLegendKey? showVal? showCatName? showSerName? "
     "showPercent? showBubbleSize? separator? showLeaderLines? leaderLines? extLst?"},
    {"dLbl",
     "idx delete? layout? tx? numFmt? spPr? txPr? dLblPos? showLegendKey? showVal? showCatName? showSerName? "
     "showPercent? showBubbleSize? separator? extLst?"},
    {"catAx",
     "axId scaling delete? axPos majorGridlines? minorGridlines? title? numFmt? majorTickMark? "
     "minorTickMark? tickLblPos? spPr? txPr? crossAx crosses/crossesAt? auto? lblAlgn? lblOffset? "
     "tickLblSkip? tickMarkSkip? noMultiLvlLbl? extLst?"},
    {"valAx",
     "axId scaling delete? axPos majorGridlines? minorGridlines? title? numFmt? majorTickMark? "
     "minorTickMark? tickLblPos? spPr? txPr? crossAx crosses/crossesAt? crossBetween? majorUnit? minorUnit? "
     "dispUnits? extLst?"},
    {"serAx",
     "axId scaling delete? axPos majorGridlines? minorGridlines? title? numFmt? majorTickMark? "
     "minorTickMark? tickLblPos? spPr? txPr? crossAx crosses/crossesAt? tickLblSkip? tickMarkSkip? extLst?"},
    {"scaling", "logBase? orientation? max? min? extLst?"},
    {"dispUnits", "builtInUnit/custUnit dispUnitsLbl? extLst?"},
    {"legend", "legendPos? legendEntry* layout? overlay? spPr? txPr? extLst?"},
    {"legendEntry", "idx delete/txPr extLst?"},
    {"spPr",
     "xfrm? custGeom/prstGeom? noFill/solidFill/gradFill/blipFill/pattFill? ln? effectLst? scene3d? sp3d? "
     "extLst?"},
    {"ln", "noFill/solidFill/gradFill/pattFill? prstDash/custDash? round/bevel/miter? headEnd? tailEnd?"},
    {"pattFill", "fgClr? bgClr?"},
    {"rich", "bodyPr lstStyle? p p*"},
    {"txPr", "bodyPr lstStyle? p p*"},
    {"p", "pPr? r/br/fld* endParaRPr?"},
};

const std::map<std::string, std::string> kLabelPlaces = {
    {"barChart", " ctr inBase inEnd outEnd "},  {"lineChart", " ctr l r t b "},
    {"scatterChart", " ctr l r t b "},          {"bubbleChart", " ctr l r t b "},
    {"pieChart", " bestFit ctr inEnd outEnd "}, {"pie3DChart", " bestFit ctr inEnd outEnd "}};

std::string Local(pugi::xml_node node) {
  const std::string name = node.name();
  return name.substr(name.find(':') + 1);
}

pugi::xml_node Child(pugi::xml_node parent, const std::string& name) {
  return parent.find_child([&](pugi::xml_node child) { return Local(child) == name; });
}

std::string ValOf(pugi::xml_node parent, const std::string& name) {
  return Child(parent, name).attribute("val").value();
}

bool Matches(const std::string& alternatives, const std::string& name) {
  return ("/" + alternatives + "/").find("/" + name + "/") != std::string::npos;
}

/// Returns the type of an element in kTypes.
std::string TypeOf(pugi::xml_node node) {
  std::string name = Local(node);
  const std::string parent = Local(node.parent());
  if (name == "ser") return parent.substr(0, parent.find_first_of("3C")) + "Chart ser";
  if (name == "marker") return parent == "ser" ? "ser marker" : "";
  return name;
}

class Complaints {
 public:
  void Check(pugi::xml_node node) {
    CheckChildren(node);
    if (Local(node) == "plotArea") CheckAxes(node);
    if (Local(node) == "dLblPos") CheckPlace(node);
    for (const pugi::xml_node& child : node.children()) {
      if (child.type() == pugi::node_element) Check(child);
    }
  }
  std::string Text() const { return text_.str(); }

 private:
  void CheckChildren(pugi::xml_node node) {
    const auto type = kTypes.find(TypeOf(node));
    if (type == kTypes.end()) return;
    pugi::xml_node child = node.first_child();
    std::istringstream order(type->second);
    for (std::string wanted; order >> wanted;) {
      const char count = wanted.back();
      if (count == '?' || count == '*') wanted.pop_back();
      int found = 0;
      while (child && Matches(wanted, Local(child)) && (count == '*' || found == 0)) {
        child = child.next_sibling();
        ++found;
      }
      if (found == 0 && count != '?' && count != '*') text_ << type->first << " lacks " << wanted << "\n";
    }
    if (child) text_ << type->first << ": " << child.name() << " out of place\n";
  }

  void CheckAxes(pugi::xml_node plotArea) {
    std::set<std::string> axes, used;
    for (const pugi::xml_node& child : plotArea.children()) {
      if (Local(child).ends_with("Ax") && !axes.insert(ValOf(child, "axId")).second) text_ << "axId twice\n";
    }
    for (const pugi::xml_node& child : plotArea.children()) {
      const bool group = Local(child).ends_with("Chart");
      if (Local(child).ends_with("Ax") && !axes.contains(ValOf(child, "crossAx")))
        text_ << "crosses nothing\n";
      for (const pugi::xml_node& link : child.children()) {
        const std::string id = link.attribute("val").value();
        if (!group || Local(link) != "axId" || id == "0") continue;
        used.insert(id);
        if (!axes.contains(id)) text_ << "no axis " << id << "\n";
      }
    }
    if (used != axes) text_ << "an axis without a group\n";
  }

  void CheckPlace(pugi::xml_node place) {
    pugi::xml_node group = place.parent();
    while (group && !Local(group).ends_with("Chart")) group = group.parent();
    const auto places = kLabelPlaces.find(Local(group));
    const std::string wanted = std::string(" ") + place.attribute("val").value() + " ";
    const bool stacked = ValOf(group, "grouping").find("tacked") != std::string::npos;
    if (places == kLabelPlaces.end() || places->second.find(wanted) == std::string::npos ||
        (stacked && wanted == " outEnd ")) {
      text_ << "labels at" << wanted << "in " << Local(group) << "\n";
    }
  }

  std::ostringstream text_;
};

}  // namespace

std::string ChartPartXml(const std::string& chart, const std::string& behind) {
  return "<c:chartSpace xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
         "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><c:chart>" +
         chart + "</c:chart>" + behind + "</c:chartSpace>";
}

std::string Between(const std::string& text, const std::string& from, const std::string& to) {
  const auto begin = text.find(from);
  if (begin == std::string::npos) return "(no " + from + ")";
  return text.substr(begin, text.find(to, begin) - begin);
}

void ExpectError1004(const std::function<void()>& call) { EXPECT_EQ(ErrorOf(call), 1004); }

std::string ChartComplaints(const std::string& part) {
  pugi::xml_document document;
  if (!document.load_string(part.c_str())) return "not well-formed\n";
  Complaints complaints;
  complaints.Check(document.document_element());
  return complaints.Text();
}

bool Has(const std::string& text, const std::string& what) { return text.find(what) != std::string::npos; }

void DeleteSeries(excel::Chart& chart) {
  while (chart.SeriesCollection()->Count() > 0) chart.SeriesCollection()->Item(1)->Delete();
}

excel::Ref<excel::Series> AddBubble(excel::Chart& chart, int row) {
  const auto series = chart.SeriesCollection()->NewSeries();
  const std::string cell = "=Sheet1!R" + std::to_string(row);
  series->SetName("B" + std::to_string(row));
  series->SetXValues(cell + "C3:R" + std::to_string(row) + "C3");
  series->SetValues(cell + "C4:R" + std::to_string(row) + "C4");
  series->SetBubbleSizes(cell + "C3:R" + std::to_string(row) + "C3");
  return series;
}

excel::Ref<excel::Series> AddOfType(excel::Chart& chart, std::int32_t type) {
  const auto series = chart.SeriesCollection()->NewSeries();
  series->SetChartType(type);
  series->SetXValues("=Sheet1!R2C1:R5C1");
  series->SetValues("=Sheet1!R2C3:R5C3");
  return series;
}

excel::Ref<excel::Chart> ChartTest::OpenChart(const std::string& part, const std::string& userShapes) {
  PlainBook book;
  book.sheets = {SalesSheet("Sheet1")};
  book.sheets[0].frames = {{"id", part}};
  if (!userShapes.empty()) {
    book.extraParts = {
        {"xl/drawings/drawing2.xml", userShapes},
        {"xl/charts/_rels/chart1.xml.rels",
         "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
         "<Relationship Id=\"rId7\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
         "relationships/chartUserShapes\" Target=\"../drawings/drawing2.xml\"/></Relationships>"}};
  }
  Open(book);
  return ChartOf("Sheet1");
}

std::string ChartTest::After(const std::string& part, const std::function<void(excel::Chart&)>& call) {
  call(*OpenChart(part));
  SaveAndReopen();
  return SavedPart("/xl/charts/chart1.xml");
}

std::string ChartTest::Sound(const std::string& part, const std::function<void(excel::Chart&)>& call) {
  const std::string after = After(part, call);
  EXPECT_EQ(ChartComplaints(after), "") << after;
  return after;
}

excel::Ref<excel::Chart> ChartTest::ChartOf(const std::string& sheet) {
  return ChartOf(Book().FindWorksheet(sheet)->Shapes()->Item(1));
}

excel::Ref<excel::Chart> ChartTest::ChartOf(const excel::Ref<excel::Shape>& shape) {
  return std::dynamic_pointer_cast<xlsx::SheetShape>(shape.shared())->Chart();
}

}  // namespace plotsmith::test
