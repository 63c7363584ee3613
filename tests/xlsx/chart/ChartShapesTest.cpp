#include <cmath>
#include <functional>
#include <map>
#include <pugixml.hpp>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Patterns.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

using test::ExpectError1004;
using S = std::string;

const S kPart = "/xl/drawings/drawing2.xml";  // The first drawing belongs to the sheet.
const S kBubbles = test::ChartPartXml(
    "<c:plotArea><c:layout/><c:bubbleChart><c:axId val=\"1\"/><c:axId val=\"2\"/></c:bubbleChart>"
    "<c:valAx><c:axId val=\"1\"/><c:axPos val=\"b\"/><c:crossAx val=\"2\"/></c:valAx><c:valAx>"
    "<c:axId val=\"2\"/><c:axPos val=\"l\"/><c:crossAx val=\"1\"/></c:valAx></c:plotArea>");

/// The children of the elements that the host writes, in schema order (ECMA-376-1, 21.3 and 20.1). "|" joins
/// alternatives and elements that can be mixed.
const std::map<S, std::vector<S>> kSchema = {
    {"userShapes", {"relSizeAnchor|absSizeAnchor"}},
    {"relSizeAnchor", {"from", "to", "sp|grpSp"}},
    {"from", {"x", "y"}},
    {"to", {"x", "y"}},
    {"grpSp", {"nvGrpSpPr", "grpSpPr", "sp|grpSp"}},
    {"nvGrpSpPr", {"cNvPr", "cNvGrpSpPr"}},
    {"nvSpPr", {"cNvPr", "cNvSpPr"}},
    {"cNvSpPr", {"spLocks"}},
    {"grpSpPr", {"xfrm"}},
    {"xfrm", {"off", "ext", "chOff", "chExt"}},
    {"sp", {"nvSpPr", "spPr", "style", "txBody"}},
    {"style", {"lnRef", "fillRef", "effectRef", "fontRef"}},
    {"spPr", {"xfrm", "prstGeom", "noFill|solidFill|pattFill", "ln"}},
    {"ln", {"noFill|solidFill"}},
    {"txBody", {"bodyPr", "lstStyle", "p"}},
    {"bodyPr", {"noAutofit|normAutofit|spAutoFit"}},
    {"p", {"pPr", "r", "endParaRPr"}},
    {"r", {"rPr", "t"}},
    {"rPr", {"solidFill", "latin", "cs"}},
    {"endParaRPr", {"solidFill", "latin", "cs"}},
};

void ExpectSchema(pugi::xml_node node) {
  const auto known = kSchema.find(S(xml::LocalName(node)));
  std::size_t rank = 0;
  for (const pugi::xml_node& child : node.children()) {
    if (child.type() != pugi::node_element) continue;
    if (known != kSchema.end()) {
      const auto& order = known->second;
      const S name = "|" + S(xml::LocalName(child)) + "|";
      while (rank < order.size() && ("|" + order[rank] + "|").find(name) == S::npos) ++rank;
      EXPECT_LT(rank, order.size()) << child.name() << " in " << node.name();
    }
    ExpectSchema(child);
  }
  if (xml::Is(node, "x") || xml::Is(node, "y")) {
    const double place = xml::ParseDouble(xml::Text(node)).value_or(-1);
    EXPECT_TRUE(place >= 0 && place <= 1) << place;
  }
}

class ChartShapesTest : public test::ChartTest {
 protected:
  using test::ChartTest::OpenChart;
  void OpenChart() { OpenChart(kBubbles); }
  excel::Ref<excel::Chart> Chart() { return ChartOf("Sheet1"); }

  /// Adds an entry of a drawn legend: a text box and a key. Returns the key.
  excel::Ref<excel::Shape> AddEntry(const S& name, double top) {
    const auto shapes = Chart()->Shapes();
    const auto text = shapes->AddTextbox(1, 0, 0, 0, 0);
    text->SetName(name + " Text");
    text->SetAlternativeText("VEX_LS_" + name + " Text");
    const auto characters = text->TextFrame()->Characters();
    characters->Font()->SetName("Arial");
    characters->Font()->SetSize(9.0);
    characters->Font()->SetColor("255");
    characters->Font()->SetBold(false);
    characters->SetText(name);
    text->TextFrame2()->SetWordWrap(false);
    text->TextFrame2()->SetAutoSize(1);
    text->TextFrame2()->SetMarginTop(0);
    text->TextFrame()->SetVerticalAlignment(excel::xlVAlignTop);
    text->TextFrame()->SetHorizontalAlignment(excel::xlHAlignLeft);
    text->TextFrame()->SetMarginTop(0);
    text->SetWidth(static_cast<double>(name.size()) * 9 / 2);
    text->SetHeight(18);
    EXPECT_EQ(text->Height(), 18);
    text->SetLeft(8);
    text->SetTop(top);
    const auto key = shapes->AddShape(1, 0, 0, 0, 0);
    key->SetName(name + " Key");
    key->SetAlternativeText("VEX_LS_" + name + " Key");
    key->SetHeight(8);
    key->SetWidth(8);
    key->Fill()->BackColor()->SetRGB(0x0000FF);
    key->Fill()->ForeColor()->SetRGB(0x0000FF);
    key->SetTop(shapes->Item(name + " Text")->Top());
    key->SetLockAspectRatio(true);
    key->SetAutoShapeType(excel::msoShapeOval);
    key->Line()->SetVisible(false);
    return key;
  }
  void DrawLegend() {
    AddEntry("Alpha", 13);
    AddEntry("Beta Two", 26);
    std::vector<S> names;
    const auto shapes = Chart()->Shapes();
    for (std::int32_t i = 1; i <= shapes->Count(); ++i) {
      const auto shape = shapes->Item(i);
      if (shape->AlternativeText().starts_with("VEX_LS_")) names.push_back(shape->Name());
    }
    const auto group = shapes->Range(names)->Group();
    group->SetName("VEX_Legend");
    group->SetWidth(52);
  }
};

TEST_F(ChartShapesTest, ALegendIsDrawnBesideThePlotArea) {
  OpenChart();
  DrawLegend();
  const auto shapes = Chart()->Shapes();
  ASSERT_EQ(shapes->Count(), 1) << "a group counts as one";
  const auto area = Chart()->PlotArea();
  EXPECT_NEAR(Chart()->ChartArea()->Width(), 384, 1e-9);
  const double height = area->Height(), top = area->Top(), left = area->Left();
  area->SetWidth(Chart()->ChartArea()->Width());
  const double widest = area->Width();
  EXPECT_NEAR(left + widest, 384 - 7, 1e-9) << "the maximum width";
  const auto legend = shapes->Range({"VEX_Legend"});
  EXPECT_EQ(legend->Name(), "VEX_Legend");
  EXPECT_EQ(legend->Width(), 52);
  EXPECT_EQ(legend->Height(), 31);
  area->SetWidth(widest - left - 52 + 10);
  legend->SetLeft(area->Left() + area->Width() + 10);
  legend->SetTop(area->Top() + area->Height() / 2 - legend->Height() / 2);

  SaveAndReopen();
  const auto again = Chart()->PlotArea();
  EXPECT_NEAR(again->Left(), left, 1e-6);
  EXPECT_NEAR(again->Top(), top, 1e-6);
  EXPECT_NEAR(again->Height(), height, 1e-6);
  EXPECT_NEAR(again->Width(), widest - left - 42, 1e-6);
  const auto group = Chart()->Shapes()->Item("vex_legend");
  EXPECT_EQ(group->Type(), excel::msoGroup);
  EXPECT_NEAR(group->Left(), 384 - 52, 0.001) << "inside the chart";
  EXPECT_GE(group->Left(), again->Left() + again->Width());
  EXPECT_NEAR(group->Top(), 7 + 256 / 2.0 - 15.5, 0.001);

  EXPECT_EQ(Book().Package().ContentType(kPart),
            "application/vnd.openxmlformats-officedocument.drawingml.chartshapes+xml");
  pugi::xml_document document;
  xml::Parse(document, SavedPart(kPart));
  EXPECT_EQ(xml::NamespaceOf(xml::Root(document)), "http://schemas.openxmlformats.org/drawingml/2006/chart");
  EXPECT_EQ(xml::NamespaceOf(xml::Root(document).first_child()),
            "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing");
  ExpectSchema(xml::Root(document));
  // The members of the group don't change; the size of the group stretches them.
  const auto object = xml::Child(xml::Root(document), "relSizeAnchor", "grpSp");
  const auto transform = xml::Child(object, "grpSpPr", "xfrm");
  EXPECT_EQ(xml::Attribute(xml::Child(transform, "ext"), "cx"), "660400");
  EXPECT_EQ(xml::Attribute(xml::Child(transform, "chExt"), "cx"), "558800");
  EXPECT_EQ(xml::Attribute(xml::Child(transform, "chOff"), "y"), "165100");
  EXPECT_EQ(xml::Children(object, "sp").size(), 4u);
  const S text = SavedPart(kPart);
  for (const char* wanted :
       {"<a:off x=\"101600\" y=\"330200\"/><a:ext cx=\"457200\" cy=\"228600\"/>",
        "<cdr:cNvPr id=\"4\" name=\"Beta Two Text\" descr=\"VEX_LS_Beta Two Text\"/><cdr:cNvSpPr "
        "txBox=\"1\"/>",
        "<a:bodyPr vertOverflow=\"clip\" wrap=\"none\" rtlCol=\"0\" tIns=\"0\" "
        "anchor=\"t\" lIns=\"27432\" rIns=\"27432\"><a:noAutofit/></a:bodyPr>",
        "<a:pPr algn=\"l\"/><a:r><a:rPr lang=\"en-US\" sz=\"900\" b=\"0\"><a:solidFill><a:srgbClr "
        "val=\"FF0000\"/></a:solidFill><a:latin typeface=\"Arial\"/><a:cs "
        "typeface=\"Arial\"/></a:rPr><a:t>Alpha</a:t></a:r>",
        "<a:spLocks noChangeAspect=\"1\"/>", "<a:prstGeom prst=\"ellipse\"><a:avLst/></a:prstGeom>",
        "<a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:ln><a:noFill/></a:ln></cdr:spPr>"}) {
    EXPECT_NE(text.find(wanted), S::npos) << wanted << "\n" << text;
  }

  // A second run on the saved file gives the same picture. Without the legend, nothing is left of it.
  Chart()->Shapes()->Item(1)->Delete();
  DrawLegend();
  EXPECT_EQ(Chart()->Shapes()->Range({"VEX_Legend"})->Height(), 31);
  Chart()->Shapes()->Item("VEX_Legend")->Delete();
  EXPECT_EQ(Chart()->Shapes()->Count(), 0);
  SaveAndReopen();
  EXPECT_FALSE(Book().Package().Has(kPart));
  EXPECT_FALSE(Book().Package().FindRelationshipOfType("/xl/charts/chart1.xml", "chartUserShapes"));
  EXPECT_EQ(SavedPart("/xl/charts/chart1.xml").find("userShapes"), S::npos);
}

TEST_F(ChartShapesTest, TheJournalHasEveryChange) {
  OpenChart();
  const auto box = Chart()->Shapes()->AddTextbox(1, 1, 2, 3, 4);
  box->SetName("A");
  box->TextFrame()->Characters()->Font()->SetBold(true);
  box->TextFrame()->Characters(2, 3)->SetText("x");
  box->TextFrame2()->SetAutoSize(1);
  box->Line()->ForeColor()->SetRGB(5);
  Chart()->Shapes()->AddShape(9, 0, 0, 5, 5)->SetName("B");
  Chart()->Shapes()->Range({"A", "B"})->Group();
  Chart()->PlotArea()->SetWidth(100);
  const std::vector<S> wanted = {"Chart.Shapes.AddTextbox(1, 1, 2, 3, 4)",
                                 "Chart.Shapes(\"TextBox 1\").Name = \"A\"",
                                 "Chart.Shapes(\"A\").TextFrame.Characters.Font.Bold = True",
                                 "Chart.Shapes(\"A\").TextFrame.Characters(2, 3).Text = \"x\"",
                                 "Chart.Shapes(\"A\").TextFrame2.AutoSize = 1",
                                 "Chart.Shapes(\"A\").Line.ForeColor.RGB = 5",
                                 "Chart.Shapes.AddShape(9, 0, 0, 5, 5)",
                                 "Chart.Shapes(\"Oval 2\").Name = \"B\"",
                                 "Chart.Shapes.Range(Array(\"A\", \"B\")).Group",
                                 "Chart.PlotArea.Width = 100"};
  EXPECT_EQ(journal_, wanted);
}

TEST_F(ChartShapesTest, ShapesOfOtherProgramsStay) {
  const S own =
      "<cdr:relSizeAnchor xmlns:cdr=\"http://schemas.openxmlformats.org/drawingml/2006/chartDrawing\">"
      "<cdr:from><cdr:x>0.25</cdr:x><cdr:y>0.5</cdr:y></cdr:from><cdr:to><cdr:x>0.5</cdr:x><cdr:y>0.6"
      "</cdr:y></cdr:to><cdr:sp macro=\"\" textlink=\"\"><cdr:nvSpPr><cdr:cNvPr id=\"9\" name=\"Trend\"/>"
      "<cdr:cNvSpPr txBox=\"1\"/></cdr:nvSpPr><cdr:spPr/><cdr:txBody>"
      "<b:bodyPr xmlns:b=\"http://schemas.openxmlformats.org/drawingml/2006/main\"/>"
      "<b:p xmlns:b=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><b:r><b:t>up &amp; &#8599;"
      "</b:t></b:r></b:p></cdr:txBody></cdr:sp></cdr:relSizeAnchor><!-- mine --><x:odd xmlns:x=\"urn:x\"/>";
  const S user = "<c:userShapes xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\">" + own +
                 "</c:userShapes>";
  const S chart = runtime::Replace(kBubbles, "</c:chartSpace>",
                                   "<c:userShapes xmlns:q=\"http://schemas.openxmlformats.org/officeDocument/"
                                   "2006/relationships\" q:id=\"rId7\"/></c:chartSpace>");
  OpenChart(chart, user);
  {
    const auto shapes = Chart()->Shapes();
    ASSERT_EQ(shapes->Count(), 1);
    const auto trend = shapes->Item("trend");
    EXPECT_EQ(trend->Type(), excel::msoTextBox);
    EXPECT_EQ(trend->Left(), 96);
    EXPECT_EQ(trend->Height(), 27);
    EXPECT_EQ(trend->TextFrame()->Characters()->Text(), "up & \u2197");
    EXPECT_FALSE(Book().Changed()) << "reading changes nothing";
  }
  DrawLegend();
  SaveAndReopen();
  EXPECT_EQ(Chart()->Shapes()->Item(1)->Name(), "Trend");
  EXPECT_EQ(Chart()->Shapes()->Item(2)->Name(), "VEX_Legend");
  EXPECT_NE(SavedPart(kPart).find(own), S::npos) << SavedPart(kPart);
  EXPECT_NE(SavedPart("/xl/charts/chart1.xml").find("q:id=\"rId7\""), S::npos) << "the link doesn't change";
  Chart()->Shapes()->Item(2)->Delete();
  SaveAndReopen();
  EXPECT_EQ(Chart()->Shapes()->Count(), 1);
  EXPECT_NE(SavedPart(kPart).find(own), S::npos);

  // A part that can't be read is an error of this chart, and is kept.
  OpenChart(chart, "<c:userShapes>");
  ExpectError1004([&] { Chart()->Shapes()->Count(); });
  Chart()->SetHasTitle(true);
  SaveAndReopen();
  EXPECT_EQ(SavedPart(kPart), "<c:userShapes>");

  // Relationships that can't be read are also kept.
  OpenChart(chart, user);
  Book().Package().Replace("/xl/charts/_rels/chart1.xml.rels", "<");
  ExpectError1004([&] { Chart()->Shapes()->Count(); });
  EXPECT_FALSE(Book().Damage());
}

TEST_F(ChartShapesTest, AStrictWorkbookStaysStrict) {
  test::PlainBook book;
  book.sheets = {test::SalesSheet("Sheet1")};
  book.sheets[0].frames = {{"id", kBubbles}};
  book.Write(folder_ / "plain.xlsx");
  Package package = Package::Open(folder_ / "plain.xlsx");
  for (const S& part : package.Parts()) {
    S text = package.Read(part);
    for (const char* family : {"drawingml", "spreadsheetml", "officeDocument"}) {
      text = runtime::Replace(text, S("http://schemas.openxmlformats.org/") + family + "/2006/",
                              S("http://purl.oclc.org/ooxml/") + family + "/");
    }
    package.Replace(part, text);
  }
  package.Save(folder_ / "strict.xlsx");
  OpenFile(folder_ / "strict.xlsx");
  ASSERT_TRUE(Book().IsStrict());
  DrawLegend();
  Book().FindWorksheet("Sheet1")->Shapes()->AddTextbox(1, 0, 0, 10, 10)->TextFrame2()->SetAutoSize(1);
  SaveAndReopen();
  EXPECT_EQ(Chart()->Shapes()->Count(), 1);
  for (const S& part : {kPart, S("/xl/drawings/drawing1.xml"), S("/xl/charts/chart1.xml"),
                        S("/xl/charts/_rels/chart1.xml.rels")}) {
    EXPECT_EQ(runtime::Replace(SavedPart(part), "http://schemas.openxmlformats.org/package/", "")
                  .find("schemas.openxmlformats.org"),
              S::npos)
        << SavedPart(part);
  }
  EXPECT_NE(SavedPart(kPart).find("http://purl.oclc.org/ooxml/drawingml/chartDrawing"), S::npos);
}

TEST_F(ChartShapesTest, ShapesStayInsideOfTheChartAndKeepTheirProportions) {
  OpenChart();
  const auto shape = Chart()->Shapes()->AddShape(1, 10, 20, 40, 20);
  const struct {
    const char* what;
    std::function<void(excel::Shape&)> call;
    Frame after;
  } cases[] = {
      {"moved beyond the edge", [](auto& s) { s.SetLeft(380); }, {344, 20, 40, 20}},
      {"moved before it", [](auto& s) { s.SetLeft(-5), s.SetTop(-5); }, {0, 0, 40, 20}},
      {"free proportions", [](auto& s) { s.SetWidth(60); }, {0, 0, 60, 20}},
      {"locked ones", [](auto& s) { s.SetLockAspectRatio(true), s.SetWidth(30); }, {0, 0, 30, 10}},
      {"by the height", [](auto& s) { s.SetHeight(20); }, {0, 0, 60, 20}},
      {"free again", [](auto& s) { s.SetLockAspectRatio(false), s.SetHeight(40); }, {0, 0, 60, 40}},
      {"larger than the chart", [](auto& s) { s.SetTop(100), s.SetHeight(900); }, {0, 0, 60, 270}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    c.call(*shape);
    EXPECT_EQ(shape->Left(), c.after.left);
    EXPECT_EQ(shape->Top(), c.after.top);
    EXPECT_EQ(shape->Width(), c.after.width);
    EXPECT_EQ(shape->Height(), c.after.height);
  }
}

TEST_F(ChartShapesTest, ABoxFollowsItsTextUntilItIsSized) {
  OpenChart();
  const auto box = Chart()->Shapes()->AddTextbox(1, 5, 5, 0, 0);
  box->TextFrame()->Characters()->SetText("Sales");
  EXPECT_EQ(box->Width(), 0) << "it wasn't requested yet";
  box->TextFrame2()->SetWordWrap(false);
  box->TextFrame2()->SetAutoSize(1);
  const double width = box->Width(), height = box->Height();
  EXPECT_NEAR(width, 14.4 + 0.001 * 11 * (459 + 479 + 229 + 498 + 391), 0.001) << "margins and five letters";
  EXPECT_NEAR(height, 7.2 + 1.2207 * 11, 0.001);
  box->TextFrame()->Characters()->SetText("Sales\nof the year");
  EXPECT_GT(box->Width(), width);
  EXPECT_NEAR(box->Height(), 7.2 + 2 * 1.2207 * 11, 0.001);
  box->TextFrame()->Characters()->Font()->SetSize(22);
  EXPECT_NEAR(box->Height(), 7.2 + 2 * 1.2207 * 22, 0.001);
  box->TextFrame2()->SetMarginTop(0);
  EXPECT_NEAR(box->Height(), 3.6 + 2 * 1.2207 * 22, 0.001);
  const double widest = box->Width();
  box->TextFrame2()->SetWordWrap(true);
  EXPECT_EQ(box->Width(), widest) << "wrapped text has a fixed width";
  box->SetWidth(30);
  EXPECT_EQ(box->Width(), 30);
  box->TextFrame2()->SetAutoSize(1);
  EXPECT_NEAR(box->Height(), 3.6 + 4 * 1.2207 * 22, 0.001) << "a word a line";
  box->SetHeight(18);
  box->TextFrame()->Characters()->SetText("Other sales\nof another year");
  box->TextFrame2()->SetWordWrap(false);
  SaveAndReopen();
  const auto again = Chart()->Shapes()->Item(1);
  EXPECT_NEAR(again->Width(), 30, 0.001) << "the text no longer determines the size";
  EXPECT_NEAR(again->Height(), 18, 0.001);
}

TEST_F(ChartShapesTest, PiecesOfATextHaveTheirOwnFont) {
  OpenChart();
  const auto sheetShapes = [&] { return Book().FindWorksheet("Sheet1")->Shapes(); };
  sheetShapes()->AddTextbox(1, 10, 10, 100, 50)->SetName("Note");
  Chart()->Shapes()->AddTextbox(1, 10, 10, 100, 50)->SetName("Note");
  for (const bool onChart : {false, true}) {
    SCOPED_TRACE(onChart);
    const auto note = [&] { return (onChart ? Chart()->Shapes() : sheetShapes())->Item("Note"); };
    note()->TextFrame()->Characters()->SetText("plain \U0001F4C8 bold\nend");
    note()->TextFrame()->Characters(10, 4)->Font()->SetBold(true);
    note()->TextFrame()->Characters(10, 4)->Font()->SetColor(0x00FF00);
    const auto piece = [&](int start, int length) {
      return note()->TextFrame()->Characters(start, length)->Text();
    };
    EXPECT_EQ(piece(1, 5), "plain");
    EXPECT_EQ(piece(7, 2), "\U0001F4C8");
    EXPECT_EQ(piece(10, 6), "bold\ne");
    EXPECT_EQ(piece(17, 200), "d");
    EXPECT_EQ(piece(18, 200), "");
    const auto font = [&](int start, int length) {
      return note()->TextFrame()->Characters(start, length)->Font();
    };
    EXPECT_EQ(font(10, 4)->FontStyle(), runtime::Variant("Bold"));
    EXPECT_EQ(font(11, 2)->Color(), runtime::Variant(0x00FF00));
    EXPECT_EQ(font(1, 9)->FontStyle(), runtime::Variant("Regular"));
    EXPECT_TRUE(font(1, 12)->FontStyle().IsNull()) << "the parts differ";
    EXPECT_EQ(font(1, 12)->Name(), runtime::Variant("Calibri"));
    EXPECT_EQ(font(1, 12)->Size(), runtime::Variant(11.0));
  }
}

TEST_F(ChartShapesTest, NewShapesHaveNamesThatNoOtherHas) {
  OpenChart();
  const auto shapes = Chart()->Shapes();
  shapes->AddTextbox(1, 0, 0, 10, 10)->SetName("textbox 2");
  EXPECT_EQ(shapes->AddTextbox(1, 0, 0, 10, 10)->Name(), "TextBox 3");
  shapes->Item(1)->SetName("Oval 3");
  EXPECT_EQ(shapes->AddShape(9, 0, 0, 5, 5)->Name(), "Oval 4");
  shapes->Item(1)->SetName("Group 4");
  EXPECT_EQ(shapes->Range({"TextBox 3", "Oval 4"})->Group()->Name(), "Group 5");
}

TEST_F(ChartShapesTest, ThePartOfShapesIsInTheFolderOfTheWorkbook) {
  test::PlainBook book;
  book.sheets = {test::SalesSheet("Sheet1")};
  book.sheets[0].frames = {{"id", kBubbles}};
  OpenRenamed(book, "xl/", "book/", "book/");
  DrawLegend();
  SaveAndReopen();
  EXPECT_EQ(Chart()->Shapes()->Count(), 1);
  EXPECT_TRUE(Book().Package().Has("/book/drawings/drawing2.xml"));
}

TEST_F(ChartShapesTest, ImpossibleCallsAreError1004) {
  OpenChart();
  const auto shapes = Chart()->Shapes();
  const auto box = shapes->AddTextbox(1, 0, 0, 10, 10), gone = shapes->AddTextbox(1, 0, 0, 10, 10);
  const auto wide = shapes->AddTextbox(1, 0, 0, 20, 10);
  gone->Delete();
  const S one = shapes->AddShape(1, 0, 0, 5, 5)->Name(), other = shapes->AddShape(1, 5, 5, 5, 5)->Name();
  shapes->Range({one, other})->Group()->SetName("Group");
  const std::function<void()> calls[] = {
      [&] { shapes->Item(4); },
      [&] { shapes->Item(0); },
      [&] { shapes->Item("nobody"); },
      [&] {
        shapes->Range({box->Name(), "nobody"});
      },
      [&] { shapes->Range({}); },
      [&] { shapes->Range({box->Name()})->Group(); },
      [&] {
        shapes->Range({box->Name(), box->Name()})->Group();
      },
      [&] {
        shapes->Range({box->Name(), wide->Name()})->Width();
      },
      [&] {
        shapes->Range({box->Name(), wide->Name()})->Name();
      },
      [&] { shapes->AddShape(9999, 0, 0, 1, 1); },
      [&] { box->SetAutoShapeType(0); },
      [&] { box->SetWidth(-1); },
      [&] { box->SetLeft(1e308 * 10); },
      [&] { box->SetTop(-1e50); },
      [&] { box->SetName(""); },
      [&] { box->TextFrame2()->SetAutoSize(7); },
      [&] { box->TextFrame()->SetVerticalAlignment(7); },
      [&] { box->TextFrame()->Characters(0); },
      [&] { box->TextFrame()->Characters()->Insert(S(limits::kShapeText + 1, 'x')); },
      [&] { box->TextFrame()->Characters()->Font()->SetSize(0); },
      [&] { box->Fill()->ForeColor()->SetRGB(-1); },
      [&] { box->Line()->SetWeight(-1); },
      [&] { gone->SetName("x"); },
      [&] { gone->TextFrame()->Characters()->SetText("x"); },
      [&] { gone->Delete(); },
      [&] { Chart()->PlotArea()->SetWidth(0); },
      [&] { shapes->AddTextbox(1, 0, 1e308 * 10, 10, 10); },
      [&] { shapes->AddShape(1, 0, 0, std::nan(""), 10); },
      [&] { shapes->Item("Group")->Line()->SetVisible(false); },
      [&] { shapes->Item("Group")->Line()->ForeColor()->SetRGB(0); },
  };
  for (std::size_t i = 0; i < std::size(calls); ++i) {
    SCOPED_TRACE(i);
    ExpectError1004(calls[i]);
  }
  EXPECT_EQ(shapes->Count(), 3);
  SaveAndReopen();
  EXPECT_EQ(test::CountOf(SavedPart(kPart), "<cdr:relSizeAnchor>"), 3u) << "the failed call leaves nothing";
  EXPECT_FALSE(test::Has(SavedPart(kPart), "<a:ln>"));
}

}  // namespace
}  // namespace plotsmith::xlsx
