#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "tests/support/Files.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;

class WizardCommandTest : public VerbsTest {};

TEST_F(WizardCommandTest, NothingElseIsSaved) {
  const struct {
    const char* name;
    S script;
    int code;
    S err;
  } cases[] = {
      {"nothing", "", 0, ""},
      {"a cancellation", "select grdCharts #1\npress cmdCopy\ntype txtTitle x\npress cmdCancel\npage none", 0,
       ""},
      {"a cancelled deletion", "select grdCharts #1\nanswer cancel\npress cmdDelete\npress cmdCancel", 0, ""},
      {"a script that ends before the pages", "press cmdNew\nselect grdTables #1\nchoose optType(3)", 0, ""},
      {"a sheet that is only viewed", "select grdCharts #1\npress cmdGoToTable\nclose", 0, ""},
      {"an impossible line", "\nselect grdCharts Sales", 2,
       "plotsmith: -:2: grdCharts has no row 'Sales'; it has 'Name of VEX_Chart1'.\n"},
      {"a build followed by an impossible line",
       "select grdCharts #1\npress cmdModify\npress cmdFinish\npage frmPSLayoutABC", 2,
       "plotsmith: -:4: the run is over, and no page is open.\n"},
      {"a message that no line expects",
       "press cmdNew\npress cmdNext\nselect grdTables #1\npage frmPSSelectTable", 2,
       "plotsmith: -:4: there was a message that no line expects: 'Please select the table on which the "
       "chart is based'.\n"},
      {"a question without an answer", "select grdCharts #1\npress cmdDelete", 2,
       "plotsmith: -:2: the question 'Are you sure you want to delete this chart?\\n\\nClick 'OK' to delete "
       "or 'Cancel' to abort.' has no answer; a line 'answer ok' or 'answer cancel' gives it in advance.\n"},
  };
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S before = BytesOf(book), out = folder_ / "out.xlsx";
  for (const auto& item : cases) {
    for (const std::vector<S>& more : {std::vector<S>{}, {"-o", out}, {"--host-version", "11"}}) {
      const CommandResult result = Wizard(book, item.script, more);
      EXPECT_EQ(result.code, item.code) << item.name;
      EXPECT_EQ(result.err, item.err) << item.name;
      EXPECT_EQ(BytesOf(book), before) << item.name;
      EXPECT_FALSE(std::filesystem::exists(out)) << item.name;
    }
  }
}

TEST_F(WizardCommandTest, TheScriptMustExpectTheWizardsMessages) {
  const S empty = [&] {
    PlainBook book;
    book.sheets.push_back({"Sheet1"});
    return Write(book, "empty.xlsx");
  }();
  const S none = "This workbook contains no tables. You must create one in order to run the Plotsmith.";
  EXPECT_EQ(Wizard(empty, "expect message \"" + none + "\"\npage none").code, 0);
  EXPECT_EQ(Wizard(empty, "page none").err,
            "plotsmith: -:1: there was a message that no line expects: '" + none + "'.\n");
  EXPECT_EQ(Wizard(empty, "").code, 2);
}

TEST_F(WizardCommandTest, PagesDoNotNestWithoutEnd) {
  const S book = Write(PlainSales());
  const S start = "select grdTables Data1\nchoose optType(1)\n";
  const auto forthAndBack = [](int times) {
    S lines;
    for (int i = 0; i < times; ++i) lines += "press cmdNext\npress cmdBack\n";
    return lines;
  };
  EXPECT_EQ(Wizard(book, start + forthAndBack(200) + "page frmPSSelectTable").err, "");
  EXPECT_EQ(Wizard(book, start + forthAndBack(249) + "press cmdNext\npress cmdBack\n" +
                             "expect message \"PSController.PSJumpToStep\\nOut of stack space\"\npage none")
                .err,
            "");
}

TEST_F(WizardCommandTest, PagesAreShown) {
  const S book = Write(PlainSales());
  const CommandResult shown =
      Wizard(book, "select grdTables Data1\nshow\nchoose optType(3)\npress cmdNext", {"--show"});
  EXPECT_TRUE(
      shown.out.starts_with("frmPSSelectTable  Brindle Plotsmith - Source Table and Chart Type\nfraTableList "
                            " Tables in this Workbook\n  grdTables   (focus)\n    >Data1\n     "
                            "Targets\nfraChartType  Chart Type\n  optType(0)  ( ) Bar\n"))
      << shown.out;
  EXPECT_NE(shown.out.find("\nfrmPSLayoutPie  Brindle Plotsmith - Chart Layout\n"), S::npos)
      << "the last page";
  const auto json = nlohmann::json::parse(Wizard(book, "show", {"--json"}).out);
  EXPECT_EQ(json["name"], "frmPSSelectTable");
  EXPECT_EQ(json["controls"][1]["rows"], nlohmann::json::parse(R"([["Data1"], ["Targets"]])"));
  EXPECT_EQ(Wizard(book, "close", {"--show"}).out, "") << "no page is open at the end";
}

TEST_F(WizardCommandTest, FilesAndLocksAreChecked) {
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S script = folder_ / "script.txt";
  std::ofstream(script) << "select grdCharts #1\r\npress cmdModify\r\npress cmdBak\r\n";
  CommandResult result = RunCommand({"wizard", book, "--script", script});
  EXPECT_EQ(result.code, 2);
  EXPECT_TRUE(
      result.err.starts_with("plotsmith: " + script + ":3: frmPSLayoutABC has no control 'cmdBak'; it has "))
      << result.err;
  result = RunCommand({"wizard", book, "--show"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "plotsmith: --show requires --script (try plotsmith wizard --help)\n");
  for (const auto& [path, reason] :
       std::vector<std::pair<S, S>>{{folder_ / "none.txt", "No such file or directory"},
                                    {folder_.Path().string(), "Is a directory"}}) {
    result = RunCommand({"wizard", book, "--script", path});
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "plotsmith: can't read \"" + path + "\": " + reason + ".\n");
  }
  std::ofstream(folder_ / "~$book.xlsx") << "";
  EXPECT_EQ(Wizard(book, "").code, 3);
  EXPECT_EQ(Wizard(book, "", {"--force"}).code, 0);
  EXPECT_EQ(Wizard(book, "", {"-o", folder_ / "out.xlsx"}).code, 0);
}

}  // namespace
}  // namespace plotsmith::cli
