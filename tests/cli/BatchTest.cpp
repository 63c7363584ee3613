#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <new>
#include <sstream>
#include <unistd.h>
#include <vector>

#include "cli/batch/BookBatch.h"
#include "cli/batch/Workers.h"
#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;
using namespace test;
using S = std::string;

/// Tests refreshing several workbooks. The output names them without their folder.
class BatchTest : public VerbsTest {
 protected:
  using VerbsTest::Write;
  S Write(const S& name) { return Write(SalesBook({{"VEX_Chart1"}}), name); }
  /// Writes a workbook with a chart that can be drawn and one whose table doesn't exist.
  S WriteHalf(const S& name) {
    auto book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "column", "table-id=\"Gone\""}});
    book.Sheet("Charts").frames[1].alternativeText = "VEX_Chart2";
    return Write(book, name);
  }
  /// Returns true if the chart of a workbook is drawn.
  static bool IsDrawn(const S& path) { return Charts(path).ends_with("\n  ok\n"); }
  S Plain(const S& text) const { return runtime::Replace(text, folder_.Path().string() + "/", ""); }
};

TEST_F(BatchTest, OneThatFailsDoesNotStopTheOthers) {
  const S first = Write("a.xlsx"), half = WriteHalf("b.xlsx"), none = folder_ / "none.xlsx",
          text = folder_ / "text.xlsx", last = Write("z.xlsx");
  std::ofstream(text) << "hello";
  const S gone =
      "Brindle Plotsmith: Chart 'Name of VEX_Chart2' has become unavailable because its source table no "
      "longer exists in this workbook.\n"
      "b.xlsx: plotsmith: VEX_ChartDefinitions!A3 (chart 'Name of VEX_Chart2'): There is no table 'Gone'; "
      "there is Data1; a sheet is a table only if its name is exactly one of Data1 to Data5.\n";
  const S said = "b.xlsx: " + gone +
                 "none.xlsx: plotsmith: can't read \"none.xlsx\": there is no such file.\n"
                 "text.xlsx: plotsmith: can't read \"text.xlsx\": it is a text file, such as .csv; save it "
                 "as .xlsx first, because only .xlsx, .xlsm, .xltx and .xltm can be read.\n";
  for (const S jobs : {"1", "2", "9"}) {
    Write("a.xlsx"), WriteHalf("b.xlsx"), Write("z.xlsx");
    // Messages are in the order of the arguments, independent of the order of completion.
    const CommandResult result =
        RunCommand({"refresh", first, half, none, text, last, first, "--jobs", jobs});
    EXPECT_EQ(result.code, 3) << "the highest of all";
    EXPECT_EQ(Plain(result.err), said);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(IsDrawn(first) && IsDrawn(last)) << jobs;
  }
  const CommandResult verbose = RunCommand({"refresh", first, half, none, "--verbose"});
  EXPECT_EQ(Plain(verbose.err), "a.xlsx: 1 chart refreshed\nb.xlsx: " + gone +
                                    "b.xlsx: 1 chart refreshed, 1 unavailable\n"
                                    "none.xlsx: plotsmith: can't read \"none.xlsx\": there is no such file.\n"
                                    "3 workbooks: 2 charts refreshed, 1 unavailable, 1 workbook failed\n");
  const CommandResult watched = RunCommand({"refresh", first, last}, "", Watched::kMessages);
  EXPECT_EQ(watched.code, 0);
  EXPECT_TRUE(watched.err.starts_with("Refreshed 1 of 2 workbooks ...\r")) << watched.err;
  EXPECT_TRUE(watched.err.ends_with("\r2 workbooks: 2 charts refreshed\n")) << watched.err;
}

TEST_F(BatchTest, OptionsApplyToEachWorkbook) {
  auto two = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "column", "table-id=\"Data2\""}});
  two.sheets.push_back(SalesSheet("Data2"));
  const S both = Write(two, "both.xlsx"), one = Write("one.xlsx");
  const CommandResult table = RunCommand({"refresh", both, one, "--table", "Data2", "--journal"});
  EXPECT_EQ(table.code, 2) << "the second workbook has no such table";
  EXPECT_EQ(Plain(table.err), "one.xlsx: plotsmith: \"one.xlsx\" has no table 'Data2'; there is Data1.\n");
  EXPECT_EQ(RunCommand({"cells", both, "VEX_ChartData!A1:A4"}).out, "VEX_Chart2\nVEX_Chart2\nVEX_Chart2\n\n");
  std::istringstream journal(table.out);
  bool ofSecond = false;
  int lines = 0;
  for (S line; std::getline(journal, line); ++lines) {
    ofSecond = ofSecond || Plain(line).starts_with("one.xlsx: ");
    EXPECT_TRUE(Plain(line).starts_with(ofSecond ? "one.xlsx: " : "both.xlsx: ")) << line;
  }
  EXPECT_GT(lines, 10);
}

TEST_F(BatchTest, ResultsAreWrittenIntoAFolderByName) {
  fs::create_directory(folder_ / "one");
  fs::create_directory(folder_ / "two");
  const S first = Write("one/a.xlsx"), second = Write("two/b.xlsx"), twin = Write("two/a.xlsx"),
          out = folder_ / "out";
  const S before = BytesOf(first);
  fs::create_directory(out);
  std::ofstream(folder_ / "file") << "x";
  EXPECT_EQ(RunCommand({"refresh", first, second, "-o", out}).code, 0);
  EXPECT_TRUE(IsDrawn(out + "/a.xlsx") && IsDrawn(out + "/b.xlsx"));
  EXPECT_EQ(BytesOf(first), before);
  fs::remove(out + "/a.xlsx");
  EXPECT_EQ(RunCommand({"refresh", first, "-o", out}).code, 0) << "also a single one";
  EXPECT_TRUE(fs::exists(out + "/a.xlsx"));
  fs::remove_all(out);
  fs::create_directory(out);

  const std::pair<std::vector<S>, S> cases[] = {
      {{first, twin, "-o", out},
       "\"one/a.xlsx\" and \"two/a.xlsx\" would both be written to \"a.xlsx\" in \"out\"."},
      {{first, second, "-o", folder_ / "file"},
       "\"file\" isn't a folder; several workbooks can only be written into a folder."},
      {{first, second, "-o", folder_ / "nowhere"},
       "there is no folder \"nowhere\"; several workbooks can only be written into a folder."},
      {{first, second, "-o", "-"},
       "only one workbook can be written to the standard output; several can be written into a folder."},
      {{second, first, "-o", folder_ / "one"},
       "\"one/a.xlsx\" is in the folder \"one\" itself; without -o it is refreshed in place."},
      {{first, second, "--jobs", "0"}, "--jobs needs a number of at least 1."}};
  for (const auto& [arguments, said] : cases) {
    const CommandResult result = RunCommand(Joined({"refresh"}, arguments));
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(Plain(result.err), "plotsmith: " + said + "\n");
  }
  EXPECT_TRUE(fs::is_empty(out)) << "all workbooks are refused before the work";
  EXPECT_EQ(BytesOf(first), before);
}

TEST_F(BatchTest, AWorkbookWithSeveralNamesIsRefreshedOnce) {
  const S book = Write("a.xlsx"), link = folder_ / "link.xlsx";
  fs::create_symlink("a.xlsx", link);
  const CommandResult result =
      RunCommand({"refresh", book, folder_ / "./a.xlsx", link, "--verbose", "--jobs", "4"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "1 chart refreshed\n");
}

TEST_F(BatchTest, AWorkerThatDiesAffectsOnlyItsOwnWorkbook) {
  std::vector<BookRun> runs;
  for (const char* name : {"a", "b", "c", "d", "e"}) runs.push_back({name, std::nullopt});
  const auto doRun = [](const BookRun& run, const Streams& to) -> BookResult {
    if (run.book == "b") std::raise(SIGKILL);
    if (run.book == "d") _exit(7);
    if (run.book == "e") throw std::bad_alloc();
    to.err << "done\nwell\n";
    to.out << run.book << '\n';
    return {exit_code::kDone, {2, 0}};
  };
  const S whole = "; the workbook is either unchanged or completely refreshed.\n";
  for (const std::size_t processes : {1u, 3u}) {
    std::istringstream in;
    std::ostringstream out, err;
    EXPECT_EQ(RunBatch(runs, doRun, processes, false, {in, out, err}), 3);
    EXPECT_EQ(out.str(), "a: a\nc: c\n");
    EXPECT_EQ(err.str(),
              "a: done\na: well\nb: plotsmith: the process that refreshed it died (Killed)" + whole +
                  "c: done\nc: well\nd: plotsmith: the process that refreshed it died (it ended early)" +
                  whole + "e: plotsmith: an unexpected error occurred: std::bad_alloc\n");
  }
}

TEST(WorkersTest, AnExceptionEndsOnlyItsWorker) {
  WorkerTasks tasks{.count = 3};
  tasks.run = [](std::size_t task) -> S {
    if (task != 1) return "done";
    std::set_terminate(std::abort);  // The process of the test stays silent.
    throw std::bad_alloc();
  };
  std::vector<S> endings(tasks.count);
  tasks.ended = [&](std::size_t task, const TaskEnding& ending) {
    endings[task] = ending.crash.value_or(ending.report);
  };
  EXPECT_EQ(RunInWorkers(tasks, 1), 0);
  EXPECT_EQ(endings, (std::vector<S>{"done", "Aborted", "done"}));
}

TEST_F(BatchTest, AnInterruptStopsTheWorkBetweenOldAndNew) {
  std::vector<BookRun> runs;
  for (int i = 0; i < 40; ++i) runs.push_back({Write(std::to_string(i) + ".xlsx"), std::nullopt});
  const S before = BytesOf(runs[0].book);
  const pid_t self = getpid();
  const auto doRun = [&](const BookRun& run, const Streams& to) -> BookResult {
    if (run.book == runs[5].book) kill(self, SIGINT);
    Session session(run.book, {}, to);
    session.Book().DefinedNames().Define("Changed", "1");
    return {session.Save({}), {}};
  };
  std::istringstream in;
  std::ostringstream out, err;
  EXPECT_EQ(RunBatch(runs, doRun, 2, false, {in, out, err}), 128 + SIGINT);
  EXPECT_TRUE(err.str().starts_with("plotsmith: stopped by a signal; ")) << err.str();
  EXPECT_EQ(BytesOf(runs[39].book), before) << "the rest isn't done";
  int files = 0;
  for (const auto& entry : fs::directory_iterator(folder_.Path())) {
    ++files;
    EXPECT_NO_THROW(xlsx::Package::Open(entry.path()).Parts());
  }
  EXPECT_EQ(files, 40) << "there are no other files";
}

}  // namespace
}  // namespace plotsmith::cli
