#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "runtime/Strings.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/HostTest.h"
#include "tests/support/RunCommand.h"
#include "tests/support/SchemaFaults.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using test::RunCommand;
using S = std::string;

constexpr const char* kLibreOffice = "LibreOffice/7.4.7.2$Linux_X86_64 LibreOffice_project/40$Build-2";

/// Tests a bubble chart with a comment box and a drawn legend after other programs have saved it.
class SavingProgramsTest : public test::HostTest {
 protected:
  static constexpr const char* kDrawing = "/xl/drawings/drawing2.xml";

  void Draw(const S& rest = "") {
    test::Definition definition = test::BubbleDefinition();
    definition.rest += rest;
    Open(test::BubbleBook({{"A", "North", 1, 2, 30}, {"B", "South", 3, 4, 20}}, definition));
    Refresh();
    const auto box = Book().FindWorksheet("Charts")->Shapes()->AddTextbox(1, 0, 0, 100, 50);
    box->SetAlternativeText("VEX_Chart1");
    box->TextFrame()->Characters()->SetText("Said of\nthe bubbles");
    RefreshAndReopen();
  }
  /// Removes from the saved file what a program loses, and stores the name of that program.
  void SaveElsewhere(const S& program, const S& version, const S& lost) {
    auto package = xlsx::Package::Open(folder_ / "saved.xlsx");
    S xml = package.Read(kDrawing);
    xml = runtime::Replace(xml, "descr=\"VEX_Chart1\"", "");
    if (lost == "kind of text boxes") xml = runtime::Replace(xml, " txBox=\"1\"", "");
    if (lost == "shapes") {
      const auto box = xml.rfind("<xdr:twoCellAnchor");
      xml.erase(box, xml.rfind("</xdr:wsDr>") - box);
      for (const auto& link : package.Relationships("/xl/charts/chart1.xml")) {
        package.RemoveRelationship("/xl/charts/chart1.xml", S(link.id));
        break;
      }
      S chart = package.Read("/xl/charts/chart1.xml");
      const auto link = chart.find("<c:userShapes");
      if (link != S::npos) chart.erase(link, chart.find('>', link) + 1 - link);
      package.Replace("/xl/charts/chart1.xml", chart);
    }
    package.Replace(kDrawing, xml);
    if (!program.empty()) test::SetSavingProgram(package, program, version);
    package.Save(folder_ / "saved.xlsx");
    OpenFile(folder_ / "saved.xlsx");
  }
  /// Returns the parts of the chart that exist after a refresh: "definition, chart, comment, legend".
  S Left() {
    RefreshAndReopen();
    S left;
    if (Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find("VEX_Chart1") != S::npos) left += "definition, ";
    const auto shapes = Book().FindWorksheet("Charts")->Shapes();
    for (int i = 1; i <= shapes->Count(); ++i) {
      const auto shape = shapes->Item(i);
      if (shape->AlternativeText() != "VEX_Chart1") continue;
      left += shape->Type() == excel::msoChart                                     ? "chart, "
              : shape->TextFrame()->Characters()->Text() == "Said of\nthe bubbles" ? "comment, "
                                                                                   : "box, ";
    }
    const auto package = xlsx::Package::Open(folder_ / "saved.xlsx");
    const auto legend = package.FindRelationshipOfType("/xl/charts/chart1.xml", "chartUserShapes");
    if (legend && package.Read(legend->target).find("\"VEX_Legend\"") != S::npos) left += "legend";
    return left;
  }
  /// Checks that everything is restored in a file that the program itself has saved, without new errors in
  /// the parts of that program.
  void ExpectAllBack(const S& path) {
    const S before = folder_ / "before.xlsx";
    std::filesystem::copy_file(path, before);
    OpenFile(path);
    EXPECT_EQ(Left(), "definition, chart, comment, legend");
    if (!test::Schemas::Present()) return;
    EXPECT_EQ(
        test::Schemas().NewFaults(xlsx::Package::Open(before), xlsx::Package::Open(folder_ / "saved.xlsx")),
        "");
  }
};

TEST_F(SavingProgramsTest, KnownLossesOfAProgramAreRestored) {
  const S all = "definition, chart, comment, legend", none = "legend";
  const struct {
    S program, version, lost, left;
  } cases[] = {
      {kLibreOffice, "15.0000", "", all},
      {kLibreOffice, "15.0000", "kind of text boxes", all},
      {"LibreOffice/6.0.7.3$Linux_X86_64", "", "kind of text boxes", all},
      {"LibreOffice/24.2.0.3$Linux_X86_64", "15.0000", "", none},
      {"Microsoft Excel", "3.0", "shapes", all},
      {"Microsoft Excel Compatible / Openpyxl 3.1.5", "3.1", "shapes", all},
      // In the file of any other program, a person has detached the chart.
      {"Microsoft Excel", "16.0300", "", none},
      {"Microsoft Excel", "", "", none},
      {"Microsoft Macintosh Excel", "15.0300", "", none},
      {"", "", "", none},
      {"&", "", "", none},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.program + " " + c.version + " " + c.lost);
    Draw();
    SaveElsewhere(c.program, c.version, c.lost);
    EXPECT_EQ(Left(), c.left);
    EXPECT_EQ(Messages(), std::vector<S>());
  }
}

TEST_F(SavingProgramsTest, ALegendThatAPersonHidStaysHidden) {
  Draw("<auto-persistence><persist property=\"legend-visibility\" value=\"hide\"/></auto-persistence>");
  EXPECT_EQ(Left(), "definition, chart, comment, ");
  SaveElsewhere("Microsoft Excel", "3.0", "");
  EXPECT_EQ(Left(), "definition, chart, comment, ");
}

TEST_F(SavingProgramsTest, TheHostReturnsTheSavingProgram) {
  const auto name = [&](const char* property = "Application name") {
    return runtime::CStr(Book().BuiltinDocumentProperties(property)->Value());
  };
  Draw();
  EXPECT_THROW(name(), runtime::RuntimeError);
  SaveElsewhere("Microsoft Excel", "16.0300", "");
  EXPECT_EQ(name("APPLICATION NAME"), "Microsoft Excel");
  EXPECT_THROW(name("Title"), runtime::RuntimeError);
  test::EditPart(folder_ / "saved.xlsx", "/docProps/app.xml",
                 [](S& xml) { xml = runtime::Replace(xml, "16.0300", "3.0"); });
  OpenFile(folder_ / "saved.xlsx");
  EXPECT_EQ(name(), "openpyxl 3.0");
  const S app = SavedPart("/docProps/app.xml");
  RefreshAndReopen();
  EXPECT_EQ(SavedPart("/docProps/app.xml"), app) << "Plotsmith doesn't sign as the program";
}

TEST_F(SavingProgramsTest, DeletedShapesAreNotRestored) {
  Draw();
  // A copy that a person made in LibreOffice shows the same data, and has no alternative text either.
  test::EditPart(folder_ / "saved.xlsx", kDrawing, [](S& xml) {
    const auto first = xml.find("<xdr:twoCellAnchor"), end = xml.find("</xdr:twoCellAnchor>") + 20;
    xml.insert(end, xml.substr(first, end - first));
  });
  SaveElsewhere(kLibreOffice, "15.0000", "");
  const S path = folder_ / "saved.xlsx";
  ASSERT_EQ(RunCommand({"refresh", path}).code, 0);
  ASSERT_EQ(RunCommand({"delete", path, "VEX_Chart1"}).code, 0);
  ASSERT_EQ(RunCommand({"refresh", path}).code, 1) << "there is no chart left to refresh";
  EXPECT_EQ(RunCommand({"charts", path}).out, "There are no charts of Plotsmith.\n");
  const S xml = xlsx::Package::Open(path).Read(kDrawing);
  EXPECT_NE(xml.find("graphicFrame"), S::npos) << "the copy is a separate chart";
  EXPECT_EQ(xml.find("VEX_Chart1"), S::npos);
}

TEST_F(SavingProgramsTest, OpenpyxlItself) {
  if (std::system("/usr/bin/python3 -c 'import openpyxl' > /dev/null 2>&1") != 0)
    GTEST_SKIP() << "openpyxl isn't installed";
  Draw();
  std::ofstream(folder_ / "save.py") << "import openpyxl, sys\n"
                                        "openpyxl.load_workbook(sys.argv[1]).save(sys.argv[1])\n";
  const S command = "/usr/bin/python3 " + (folder_ / "save.py") + " " + (folder_ / "saved.xlsx");
  ASSERT_EQ(std::system(command.c_str()), 0);
  const auto drawing = xlsx::Package::Open(folder_ / "saved.xlsx").Read("/xl/drawings/drawing1.xml");
  ASSERT_EQ(drawing.find("VEX_Chart1"), S::npos) << "this version keeps alternative texts";
  ExpectAllBack(folder_ / "saved.xlsx");
}

TEST_F(SavingProgramsTest, LibreOfficeItself) {
  if (std::system("command -v soffice > /dev/null 2>&1") != 0) GTEST_SKIP() << "LibreOffice isn't installed";
  Draw();
  const S command = "soffice -env:UserInstallation=file://" + (folder_ / "profile") +
                    " --headless --convert-to 'xlsx:Calc MS Excel 2007 XML' --outdir " + (folder_ / "there") +
                    " " + (folder_ / "saved.xlsx") + " > /dev/null 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0);
  ExpectAllBack(folder_ / "there/saved.xlsx");
}

}  // namespace
}  // namespace plotsmith
