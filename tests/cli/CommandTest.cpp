#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <sys/stat.h>
#include <vector>

#include "cli/Session.h"
#include "cli/line/RunCommandLine.h"
#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/VerbsTest.h"
#include "xlsx/package/Archive.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;

class CommandTest : public VerbsTest {};

TEST_F(CommandTest, RefreshPrintsNothingWithoutProblems) {
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S before = BytesOf(book);
  const CommandResult refreshed = RunCommand({"refresh", book, "-o", folder_ / "out.xlsx"});
  EXPECT_EQ(refreshed.code, 0) << refreshed.err;
  EXPECT_EQ(refreshed.out + refreshed.err, "");
  EXPECT_EQ(BytesOf(book), before) << "with -o the workbook itself doesn't change";
  EXPECT_EQ(RunCommand({"cells", folder_ / "out.xlsx", "VEX_ChartData!A1:D3"}).out,
            "VEX_Chart1\t\tWidget\tGadget\nVEX_Chart1\tEast\t11\t7\nVEX_Chart1\tWest\t5\t\n");
  EXPECT_EQ(RunCommand({"refresh", book}).code, 0);
  EXPECT_NE(BytesOf(book), before);
}

TEST_F(CommandTest, UnreadableFilesAreReportedAndNothingIsWritten) {
  const auto file = [&](const S& name, const S& bytes) {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
    return folder_ / name;
  };
  const auto zip = [&](const S& name, const S& entry, const S& bytes) {
    xlsx::ArchiveWriter writer(folder_ / name);
    writer.Add(entry, bytes, false);
    writer.Finish();
    return folder_ / name;
  };
  const auto other = [](const S& format) {
    return "it is " + format +
           "; save it as .xlsx first, because only .xlsx, .xlsm, .xltx and .xltm can be read";
  };
  const S pipe = folder_ / "pipe.xlsx";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  PlainBook damaged = SalesBook({{"VEX_Chart1"}});
  damaged.Sheet("Data1").afterData =
      "</worksheet><";  // The damage is after the cells, where it doesn't matter.
  const S odd = Write(damaged, "odd.xlsx");
  damaged.Sheet("Data1").rows.push_back({RawCell{" t='x><v>1</v></c>"}});
  const S bad = Write(damaged, "bad.xlsx");
  damaged.workbookExtra =
      "<sheets><sheet name='One' r:id='rId1'/><sheet name='Two' r:id='rId2'/><sheet name='Three' "
      "r:id='rId1'/></sheets>";
  const S shared = Write(damaged, "shared.xlsx");
  S encrypted = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  encrypted += S(1000, '\0');
  const S old = file("old.xls", encrypted);
  for (const char c : S("EncryptedPackage")) encrypted += {c, '\0'};
  const std::pair<S, S> cases[] = {
      {folder_ / "none.xlsx", "there is no such file"},
      {file("empty.xlsx", ""), "it is empty"},
      {file("noise.xlsx", S("hello\0world", 11)), "Not a zip archive"},
      {file("secret.xlsx", encrypted), "it is encrypted with a password"},
      {old, other("a workbook of Excel 97-2003 (.xls)")},
      {file("text.csv", "Region,Amount\n"), other("a text file, such as .csv")},
      {file("page.xls", "<HTML><table></table></HTML>"), other("a web page (.html)")},
      {file("flat.fods", "<d xmlns:o='urn:oasis:names:tc:opendocument:xmlns:office:1.0'/>"),
       other("an OpenDocument spreadsheet of plain XML (.fods)")},
      {zip("book.ods", "mimetype", "application/vnd.oasis.opendocument.spreadsheet"),
       other("an OpenDocument file, such as .ods")},
      {zip("book.numbers", "Index/Document.iwa", "x"), other("a spreadsheet of Numbers (.numbers)")},
      {zip("other.zip", "readme", "x"), "it is not an Office document: it has no content types"},
      {pipe, "it is not a regular file"},
      {shared, "its sheets One and Three share one part"},
      {bad, "its part /xl/worksheets/sheet1.xml can't be read: its XML is damaged"}};
  for (const auto& [path, reason] : cases) {
    const auto before = path == pipe ? S() : BytesIfThere(path);  // The pipe would wait for a writer.
    const CommandResult result = RunCommand({"refresh", path, "-o", folder_ / "out.xlsx"});
    EXPECT_EQ(result.code, 3) << path;
    EXPECT_EQ(result.err, "plotsmith: can't read \"" + path + "\": " + reason + ".\n");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "out.xlsx"));
    EXPECT_EQ(path == pipe ? S() : BytesIfThere(path), before);
  }
  EXPECT_EQ(RunCommand({"refresh", odd}).code, 0);
  std::filesystem::create_symlink("round", folder_.Path() / "round");
  const std::pair<S, S> noFiles[] = {
      {folder_ / "", "it is a folder"},
      {folder_ / "round", "it can't be opened: Too many levels of symbolic links"},
      {folder_ / S(300, 'x'), "it can't be opened: File name too long"}};
  for (const auto& [path, reason] : noFiles) {
    EXPECT_EQ(RunCommand({"refresh", path}).err, "plotsmith: can't read \"" + path + "\": " + reason + ".\n");
  }
  const CommandResult unwritable = RunCommand({"refresh", odd, "-o", folder_ / "no/folder/x.xlsx"});
  EXPECT_EQ(unwritable.code, 3);
  EXPECT_TRUE(unwritable.err.starts_with("plotsmith: can't save ")) << unwritable.err;
}

TEST_F(CommandTest, NothingIsSavedAfterMemoryRanOut) {
  // There is only enough memory for the first lines of the journal, so that the work fails in the middle.
  struct Buffer : std::streambuf {
    explicit Buffer(int lines) : left(lines) {}
    int left;
    int overflow(int c) override {
      if (c == '\n' && --left <= 0) throw std::bad_alloc();
      return c;
    }
  };
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  for (const int lines : {1, 6, 20, 40}) {
    Buffer buffer(lines);
    std::ostream out(&buffer);
    out.exceptions(std::ios::badbit);
    std::istringstream in;
    std::ostringstream err;
    EXPECT_EQ(
        RunCommandLine({"--journal", "refresh", book, "-o", folder_ / "out.xlsx"}, {in, out, err, false}), 3);
    EXPECT_EQ(err.str(), "plotsmith: can't read \"" + book + "\": there is not enough memory for it.\n");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "out.xlsx")) << lines;
  }
}

TEST_F(CommandTest, NothingIsSavedAfterTheOutputWasLost) {
  struct Full : std::streambuf {
    int overflow(int) override { return traits_type::eof(); }
  } full;
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S before = BytesOf(book);
  for (const std::vector<S>& arguments : std::vector<std::vector<S>>{
           {"refresh", book, "--journal"}, {"cells", book, "Data1!A1"}, {"--version"}}) {
    std::ostream out(&full);
    std::istringstream in;
    std::ostringstream err;
    EXPECT_EQ(RunCommandLine(arguments, {in, out, err, false}), 3);
    EXPECT_EQ(err.str(), "plotsmith: the output can't be written.\n");
  }
  EXPECT_EQ(BytesOf(book), before);
}

TEST_F(CommandTest, WrongUsageHasExitCode2) {
  const S book = Write(SalesBook({}));
  for (const std::vector<S>& arguments :
       std::vector<std::vector<S>>{{},
                                   {"dance"},
                                   {"refresh"},
                                   {"save", book},
                                   {"cells", book, "A1"},
                                   {"cells", book, "Nowhere!A1"},
                                   {"definition", book, "x"},
                                   {"format", "0"},
                                   {"format", "0.0.\"", "1"},
                                   {"refresh", book, "--table", "Nowhere"},
                                   {"refresh", book, "-o", ""},
                                   {"save", book, "-o", ""},
                                   {"refresh", book, "--host-version", "old"},
                                   {"refresh", book, "--host-version", "0"}}) {
    const CommandResult result = RunCommand(arguments);
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(result.err.starts_with("plotsmith: ")) << result.err;
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
  }
  EXPECT_EQ(RunCommand({"--journal", "dance"}).err,
            "plotsmith: there is no command 'dance'; there are refresh, render, new, modify, copy, delete, "
            "wizard, rename-columns, check, tables, charts, definition, cells, format, save and help (try "
            "plotsmith --help)\n");
  EXPECT_EQ(RunCommand({"--help"}).code, 0);
  const std::pair<std::vector<S>, S> misplaced[] = {
      {{"refresh", "-dash.xlsx"}, "there is no option '-dash.xlsx' (try plotsmith refresh --help)"},
      {{"--jornal", "refresh", book}, "there is no option '--jornal' (try plotsmith refresh --help)"},
      {{"tables", book, "Data1", "[x]"},
       "'Data1' and '[x]' are arguments too many (try plotsmith tables --help)"},
      {{"tables", book, "Data1"}, "'Data1' is one argument too many (try plotsmith tables --help)"}};
  for (const auto& [arguments, said] : misplaced) {
    const CommandResult result = RunCommand(arguments);
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "plotsmith: " + said + "\n");
  }
}

TEST_F(CommandTest, AWorkbookWithoutDefinitionsIsLeftAsItIs) {
  const S book = Write(PlainSales()), before = BytesOf(book), out = folder_ / "out.xlsx";
  const S said = "plotsmith: \"" + book + "\" has no charts of Plotsmith, so nothing was refreshed.\n";
  CommandResult result = RunCommand({"refresh", book});
  EXPECT_EQ(result.err, said);
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(BytesOf(book), before);
  result = RunCommand({"refresh", book, "-o", out});
  EXPECT_EQ(result.err, said);
  EXPECT_EQ(RunCommand({"tables", out}).out, RunCommand({"tables", book}).out) << "-o always writes";
}

TEST_F(CommandTest, ArgumentsAreTakenAsTheyAreWritten) {
  const S book = Write(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}})), out = folder_ / "out.xlsx";
  EXPECT_EQ(RunCommand({"refresh", book}).code, 0);
  for (const S name : {"[VEX_Chart2]", "++", "[a,b]"}) {
    EXPECT_EQ(RunCommand({"modify", book, "VEX_Chart1", "--name", name}).code, 0) << name;
    EXPECT_EQ(RunCommand({"delete", book, name, "-o", out}).err, "") << name;
    EXPECT_TRUE(Charts(out).starts_with("VEX_Chart2")) << name;
  }
  EXPECT_EQ(RunCommand({"format", "[h]", "1.5"}).out, "36\n");
  const auto script = [&](const std::vector<S>& options) {
    return RunCommand(Joined({"modify", book, "VEX_Chart1"}, Joined(options, {"--print-script"}))).out;
  };
  EXPECT_NE(script({"--title="}).find("\ntype txtTitle \"\"\n"), S::npos);
  EXPECT_NE(script({"--title=[x]"}).find("\ntype txtTitle [x]\n"), S::npos);
  EXPECT_NE(script({"--x-axis=", "--y-axis=Q"}).find("\ntype txtHAxis \"\"\ntype txtVAxis Q\n"), S::npos);
  EXPECT_EQ(RunCommand({"tables", "--", "--x="}).err,
            "plotsmith: can't read \"--x=\": there is no such file.\n");
}

TEST_F(CommandTest, AWorkbookThatIsOpenElsewhereIsRefused) {
  for (const char* lock : {".~lock.book.xlsx#", "~$book.xlsx"}) {
    const S book = Write(SalesBook({{"VEX_Chart1"}}));
    std::ofstream(folder_ / lock) << "somebody";
    const S before = BytesOf(book);
    const CommandResult refused = RunCommand({"refresh", book});
    EXPECT_EQ(refused.code, 3);
    EXPECT_NE(refused.err.find("is open in another program"), S::npos);
    EXPECT_EQ(BytesOf(book), before);
    EXPECT_EQ(RunCommand({"refresh", book, "-o", folder_ / "other.xlsx"}).code, 0) << "it is only read then";
    EXPECT_EQ(RunCommand({"refresh", book, "--force"}).code, 0);
    std::filesystem::remove(folder_ / lock);
  }
}

TEST_F(CommandTest, ListsAndJson) {
  PlainBook plain = SalesBook({{"VEX_Chart1", "bar"}});
  plain.Sheet("Data1").rows[1][2] = RawCell{" t='e'><v>#N/A</v></c>"};
  const S book = Write(plain);
  const S before = BytesOf(book);
  EXPECT_EQ(RunCommand({"tables", book}).out,
            "Data1  \"Data1\"\n  sheet Data1, rows 1 to 5 (4 of data), from column 1\n  label\tcolumn "
            "1\tRegion\n  label\tcolumn 2\tProduct\n  label\tcolumn 3\tAmount\n  number\tcolumn 4\tCost\n");
  EXPECT_EQ(nlohmann::ordered_json::parse(RunCommand({"tables", book, "--json"}).out),
            nlohmann::ordered_json::parse(R"([{"id": "Data1", "name": "Data1", "sheet": "Data1", "topRow": 1,
                "leftColumn": 1, "height": 5, "headerRows": 1, "bucketCandidate": false, "columns": [
                {"name": "Region", "kind": "label", "column": 1},
                {"name": "Product", "kind": "label", "column": 2},
                {"name": "Amount", "kind": "label", "column": 3},
                {"name": "Cost", "kind": "number", "column": 4}]}])"));
  EXPECT_EQ(RunCommand({"charts", book, "--json"}).out, R"([
  {
    "id": "VEX_Chart1",
    "name": "Name of VEX_Chart1",
    "title": "Sales",
    "type": "bar",
    "chartSheet": "Charts",
    "tableSheet": "Data1",
    "table": "Data1",
    "state": "not drawn",
    "reason": "The chart waits for a refresh. The column 'Amount' isn't a number column, which 'values' needs, because this cell contains the error #N/A, which counts as 0.",
    "findings": [
      {
        "place": "Data1!C2",
        "sentence": "The column 'Amount' isn't a number column, which 'values' needs, because this cell contains the error #N/A, which counts as 0."
      }
    ]
  }
]
)");
  EXPECT_NE(StoredDefinition(book, "name of vex_chart1").find("<chart id=\"VEX_Chart1\""), S::npos);
  EXPECT_EQ(RunCommand({"cells", book, "data1!A2:C3", "--json"}).out,
            "[[\"East\",\"Widget\",\"#N/A\"],[\"West\",\"Widget\",\"5\"]]\n");
  EXPECT_EQ(RunCommand({"cells", book, "Data1!C:C", "--value", "--json"}).out,
            "[[\"Amount\"],[\"#N/A\"],[5.0],[7.0],[1.0]]\n");
  EXPECT_EQ(BytesOf(book), before) << "reading commands write nothing";

  // The id of a chart takes precedence over the names of others.
  auto alike = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
  alike.Sheet("Charts").frames[1].alternativeText = "VEX_Chart2";
  const S twins = Write(alike, "twins.xlsx");
  EditPart(twins, "/xl/worksheets/sheet3.xml", [](S& sheet) {
    const S name = "Name of VEX_Chart1";
    sheet.replace(sheet.find(name), name.size(), "VEX_Chart2");
  });
  EXPECT_NE(StoredDefinition(twins, "VEX_Chart2").find("<chart id=\"VEX_Chart2\""), S::npos);
}

TEST_F(CommandTest, EachStateHasItsReason) {
  Definition gone{"VEX_Chart1", "bar", "table-id=\"Gone\""}, column{"VEX_Chart2"};
  column.values = "<values><column name=\"Nowhere\"/></values>";
  auto plain = SalesBook({gone, column, {"VEX_Chart3"}, {"VEX_Chart4", "unknown"}, {"VEX_Chart5"}});
  plain.Sheet("VEX_ChartDefinitions").rows.back()[0] = runtime::Replace(column.Xml(), "Chart2", "Chart5");
  plain.Sheet("Charts").frames.back().chartXml = runtime::Replace(
      EmptyFrameChart(), "<a:noFill/>", "<a:solidFill><a:srgbClr val=\"FFFFFF\"/></a:solidFill>");
  const S book = Write(plain);
  EXPECT_EQ(RunCommand({"refresh", book}).code, 1);
  const S list = RunCommand({"charts", book}).out;
  const auto charts = nlohmann::json::parse(RunCommand({"charts", book, "--json"}).out);
  const auto definitions = nlohmann::json::parse(RunCommand({"check", book, "--json"}).out)["definitions"];
  const S states[] = {"table no longer fits", "unavailable", "ok", "unsupported type", "not drawn"};
  const S words[] = {"Gone", "Nowhere", "", "unknown", "Nowhere"};
  ASSERT_EQ(charts.size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(charts[i]["state"], states[i]);
    const S reason = charts[i]["reason"];
    EXPECT_EQ(reason.empty(), states[i] == "ok");
    EXPECT_NE(reason.find(words[i]), S::npos) << reason;
    if (reason.empty()) continue;
    EXPECT_NE(list.find("\n  " + states[i] + "\n"), S::npos) << list;
    EXPECT_NE(reason.find(definitions[i]["findings"][0]["sentence"]), S::npos) << "as in the output of check";
  }
}

TEST_F(CommandTest, DatesHaveAnIsoTextAndANumber) {
  PlainBook plain = SalesBook({});
  plain.styles =
      "<styleSheet xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'><numFmts>"
      "<numFmt numFmtId='170' formatCode='yyyy-mm-dd'/><numFmt numFmtId='171' formatCode='d/m/yy h:mm'/>"
      "</numFmts><cellXfs><xf/><xf numFmtId='170'/><xf numFmtId='20'/><xf numFmtId='171'/>"
      "<xf numFmtId='46'/></cellXfs></styleSheet>";
  plain.Sheet("Data1").rows = {{RawCell{" s='1'><v>45000.25</v></c>"}, RawCell{" s='2'><v>45000.25</v></c>"},
                                RawCell{" s='3'><v>45000.25</v></c>"}, RawCell{" s='4'><v>1.5</v></c>"},
                                45000.25, S("text"), RawCell{" s='1'><v>-1</v></c>"}}};
  const auto cells = [&](const std::vector<S>& options) {
    return RunCommand(Joined({"cells", Write(plain), "Data1!A1:G1"}, options)).out;
  };
  EXPECT_EQ(cells({"--value", "--json"}),
            R"([[{"number":45000.25,"iso":"2023-03-15"},{"number":45000.25,"iso":"06:00:00"},)"
            R"({"number":45000.25,"iso":"2023-03-15T06:00:00"},{"number":1.5,"iso":"PT36H"},)"
            "45000.25,\"text\",-1.0]]\n");
  EXPECT_EQ(cells({"--value"}), "45000.25\t45000.25\t45000.25\t1.5\t45000.25\ttext\t-1\n");
  EXPECT_EQ(cells({"--json"}),
            "[[\"2023-03-15\",\"6:00\",\"15/3/23 6:00\",\"36:00:00\",\"45000.25\",\"text\",\"########\"]]\n");
  plain.workbookExtra = "<workbookPr date1904='1'/>";
  EXPECT_EQ(cells({"--value", "--json"}).substr(0, 44), R"([[{"number":45000.25,"iso":"2027-03-16"},{"n)");
}

TEST_F(CommandTest, HelpAndVersionCanBeRequestedInEveryWay) {
  const S all = RunCommand({"--help"}).out, refresh = RunCommand({"refresh", "--help"}).out;
  EXPECT_EQ(RunCommand({"help"}).out, all);
  EXPECT_EQ(RunCommand({"help", "refresh"}).out, refresh);
  EXPECT_EQ(RunCommand({"-V"}).out, RunCommand({"--version"}).out);
  EXPECT_EQ(RunCommand({"-V"}).code + RunCommand({"help"}).code, 0);
  const CommandResult unknown = RunCommand({"help", "dance"});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_EQ(unknown.err, RunCommand({"dance"}).err);
}

TEST_F(CommandTest, Formats) {
  EXPECT_EQ(RunCommand({"format", "#,##0.00", "-1234.5"}).out, "-1,234.50\n");
  EXPECT_EQ(RunCommand({"format", "--date1904", "yyyy-mm-dd", "0"}).out, "1904-01-01\n");
  for (const std::vector<S>& arguments :
       std::vector<std::vector<S>>{{"format", "-0.0", "-2"},
                                   {"format", "--host-version", "11", "-0.0", "-2"},
                                   {"format", "--host-version=11", "-0.0", "-2"},
                                   {"format", "-0.0", "-2", "--force"},
                                   {"--force", "--host-version", "11", "format", "-0.0", "-2"},
                                   {"--host-version=11", "format", "-0.0", "-2"},
                                   {"format", "--", "-0.0", "-2"}})
    EXPECT_EQ(RunCommand(arguments).out, "--2.0\n");
  EXPECT_EQ(RunCommand({"format", "--tsv"}, "0.0\t2.25\n@\" x\"\tabc\n0\"\t1\n;;;\t5\r\nGeneral\tTRUE\n").out,
            "2.3\nabc x\n(invalid format)\n\nTRUE\n");
}

TEST_F(CommandTest, JournalVersionAndProgress) {
  const S book = Write(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}}));
  const S journal =
      RunCommand({"refresh", book, "--journal", "--host-version", "11", "-o", folder_ / "o.xlsx"}).out;
  EXPECT_NE(journal.find("\nChart.ChartType = 57\n"), S::npos);
  EXPECT_NE(journal.find("Chart.SeriesCollection(1).Name = \"=VEX_ChartData!R1C3\""), S::npos);
  const CommandResult watched =
      RunCommand({"refresh", book, "-o", folder_ / "o.xlsx"}, "", Watched::kMessages);
  EXPECT_NE(watched.err.find("\rRefreshing chart 2 ..."), S::npos);
  EXPECT_TRUE(watched.err.ends_with("\r2 charts refreshed\n")) << "the progress line is erased";
  EXPECT_EQ(watched.code, 0);
  EXPECT_EQ(VersionText(16), "16.0");
  EXPECT_EQ(VersionText(11.5), "11.5");
}

TEST_F(CommandTest, ChartsFollowRenamedColumns) {
  auto sales = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "bar", "table-id=\"Data2\" title=\"\""}});
  sales.Sheet("Charts").frames[1].alternativeText = "VEX_Chart2";
  const S book = Write(sales);
  // This renames a swap, a chain and a single column at once.
  CommandResult result = RunCommand(
      {"rename-columns", book, "--table", "Data1", "Region=Product", "Product=Region", "Amount=Units"});
  const S waiting = "plotsmith: the table 'Data1' has no column 'Units' yet, so its charts weren't drawn.\n";
  EXPECT_EQ(result.err, waiting);
  EXPECT_EQ(result.code, 1);
  EXPECT_NE(
      StoredDefinition(book, "VEX_Chart1").find("<categories headings-in=\"rows\"><column name=\"Product\""),
      S::npos);
  EXPECT_NE(StoredDefinition(book, "VEX_Chart1").find("<series headings-in=\"rows\"><column name=\"Region\""),
            S::npos);
  EXPECT_NE(StoredDefinition(book, "VEX_Chart1").find("<values><column name=\"Units\""), S::npos);
  EXPECT_NE(StoredDefinition(book, "VEX_Chart2").find("<values><column name=\"Amount\""), S::npos)
      << "another table";

  // The title of the axis follows, and the heading may have the new name in another case.
  Definition titled{"VEX_Chart1"};
  titled.rest = "<axes><axis type=\"label\" label=\"Region\" sticky=\"no\"/></axes>";
  const S other = Write(SalesBook({titled}), "titled.xlsx");
  EXPECT_EQ(RunCommand({"refresh", other}).code, 0);
  EditPart(other, "/xl/worksheets/sheet1.xml",
           [](S& sheet) { sheet.replace(sheet.find("Region"), 6, "AREA"); });
  EXPECT_EQ(RunCommand({"rename-columns", other, "--table", "Data1", "Region=Area"}).code, 0);
  EXPECT_EQ(RunCommand({"refresh", other}).code, 0);
  EXPECT_NE(StoredDefinition(other, "VEX_Chart1").find("label=\"Area\" sticky=\"no\""), S::npos);

  const S before = BytesOf(book);
  result = RunCommand({"rename-columns", book, "--table", "Data1", "Amount=Units"});
  EXPECT_EQ(result.err, waiting) << "it is already renamed";
  result = RunCommand({"rename-columns", book, "--table", "Data1", "Amount=Cost", "Units=Amount", "-o",
                       folder_ / "partly.xlsx"});
  EXPECT_EQ(result.err,
            "plotsmith: no chart of the table 'Data1' has a column 'Amount'; there are Product, Region and "
            "Units.\n")
      << "the columns before the renamings";
  result = RunCommand({"rename-columns", book, "--table", "Data1", "Amuont=Money", "label=Text"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(
      result.err,
      "plotsmith: no chart of the table 'Data1' has a column 'Amuont'; there are Product, Region and Units.\n"
      "plotsmith: no chart of the table 'Data1' has a column 'label'; there are Product, Region and "
      "Units.\n");
  EXPECT_EQ(BytesOf(book), before);
  for (const auto& [arguments, said] : std::vector<std::pair<std::vector<S>, S>>{
           {{"--table", "Data1", "Region"}, "'Region' isn't a renaming"},
           {{"--table", "Data1", "A=B", "A=C"}, "'A' is renamed twice"},
           {{"--table", "Data9", "A=B"}, "has no table 'Data9'; there is Data1."},
           {{"--table", "", "A=B"}, "--table needs the id of a table."},
           {{"A=B"}, "--table is required"},
           {{"--table", "Data1"}, "OLD=NEW is required"}}) {
    result = RunCommand(Joined({"rename-columns", book}, arguments));
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.err.find(said), S::npos) << result.err;
  }
  EXPECT_EQ(BytesOf(book), before);
}

}  // namespace
}  // namespace plotsmith::cli
