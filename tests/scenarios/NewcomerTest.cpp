#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <vector>

#include "cli/line/CommandLine.h"
#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"
#include "tests/support/RunCommand.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using S = std::string;

const fs::path kRoot = test::kSourceFolder;

/// Returns the first code block of a page that begins with `begin`.
S Block(const S& page, const S& begin) {
  const auto from = page.find("```" + begin);
  if (from == S::npos) return {};
  const auto text = page.find('\n', from) + 1;
  return page.substr(text, page.find("```", text) - text);
}

/// Executes the instructions in the documentation for new users.
class NewcomerTest : public ::testing::Test {
 protected:
  /// Runs a shell command, which must succeed, and returns the output of both streams.
  S Shell(const S& command) {
    const S out = folder_ / "out.txt";
    EXPECT_EQ(std::system((command + " > " + out + " 2>&1").c_str()), 0) << command << '\n'
                                                                         << test::BytesOf(out);
    return test::BytesOf(out);
  }
  /// Runs a line of a page on a workbook of this test. Returns the output.
  S ShellOfPage(const S& line) {
    using runtime::Replace;
    const S built = Replace(Replace(line, "build/plotsmith", test::kCommand), "book.xlsx", book_);
    return Shell(Replace(built, "examples/", (kRoot / "examples/").string()));
  }

  test::TempFolder folder_;
  const S book_ = folder_ / "book.xlsx";
  const S readme_ = test::BytesOf(kRoot / "README.md");
};

TEST_F(NewcomerTest, TheReadmesWorkbookIsRefreshed) {
  std::istringstream commands(Block(readme_, "\npython3 examples/write_book.py"));
  S line, last;
  while (std::getline(commands, line)) {
    last = ShellOfPage(line);
    if (line.find("write_book") == S::npos) continue;
    // The script writes the definition that the page shows above it.
    const S definition = test::ReplaceMatches(Block(readme_, "xml\n"), "\n *", "");
    EXPECT_EQ(Shell(S(test::kCommand) + " cells " + book_ + " 'VEX_ChartDefinitions!A2'"), definition + "\n");
  }
  EXPECT_EQ(last,
            "VEX_Chart1  \"Sales\"\n  column chart on sheet Data1, from table Data1 on sheet Data1\n  ok\n");
}

TEST_F(NewcomerTest, TheExamplesAreRefreshedWithoutMessages) {
  int books = 0;
  for (const auto& entry : fs::directory_iterator(kRoot / "examples")) {
    if (entry.path().extension() != ".xlsx") continue;
    ++books;
    const S out = folder_ / entry.path().filename().string();
    EXPECT_EQ(Shell(S(test::kCommand) + " refresh " + entry.path().string() + " -o " + out), "");
    const S charts = Shell(S(test::kCommand) + " charts " + out);
    EXPECT_NE(charts, "");
    std::istringstream lines(charts);
    for (S id, place, state;
         std::getline(lines, id) && std::getline(lines, place) && std::getline(lines, state);)
      EXPECT_EQ(state, "  ok") << out << ' ' << id;
  }
  EXPECT_GE(books, 4);
}

TEST_F(NewcomerTest, TheDefinitionsOfThePageOfFormatsAreDrawn) {
  const S page = test::BytesOf(kRoot / "docs/file-formats.md");
  for (const auto& [type, example] :
       {std::pair<S, S>{"bubble", "countries"}, {"strategic bucket", "investments"}}) {
    SCOPED_TRACE(type);
    const auto begin = page.rfind("<chart ", page.find("type=\"" + type + "\""));
    S definition = page.substr(begin, page.find("```", begin) - begin);
    definition = test::ReplaceMatches(definition, "id=\"VEX_Chart[0-9]\"", "id=\"VEX_Chart1\"");
    {
      const auto host = xlsx::Application::Create();
      host->Open((kRoot / "examples" / (example + ".xlsx")).string());
      host->Book().FindWorksheet("VEX_ChartDefinitions")->Cells(2, 1)->SetValue(definition);
      host->Book().Save(book_);
    }
    EXPECT_EQ(Shell(S(test::kCommand) + " refresh " + book_), "");
    const S charts = Shell(S(test::kCommand) + " charts " + book_);
    EXPECT_TRUE(charts.starts_with("VEX_Chart1  \"" + S(type == "bubble" ? "Wealth" : "Investments") + "\""))
        << charts;
    EXPECT_EQ(charts.find("not drawn"), S::npos) << charts;
  }
}

TEST_F(NewcomerTest, TheFirstStepsOfTheReadmeMakeAChart) {
  std::istringstream commands(Block(readme_, "\ncp examples/data/orders.xlsx") +
                              Block(readme_, "\nbuild/plotsmith refresh book.xlsx"));
  int steps = 0;
  for (S line; std::getline(commands, line); ++steps) ShellOfPage(line);
  EXPECT_EQ(steps, 4);
  EXPECT_EQ(Shell(S(test::kCommand) + " charts " + book_),
            "VEX_Chart1  \"Amount by region\"\n  column chart on sheet Charts, from table Data1 on sheet "
            "Data1\n  ok\n");
}

TEST_F(NewcomerTest, TheScriptsOfTheWizardsPagePrintItsOutput) {
  const S page = test::BytesOf(kRoot / "docs/wizard.md");
  const S book = folder_ / "orders.xlsx";
  fs::copy_file(kRoot / "examples/data/orders.xlsx", book);
  const S begin = "```script\n", end = "```\n", printed = "\n```text\n";
  int scripts = 0;
  for (auto at = page.find(begin); at != S::npos; at = page.find(begin, at), ++scripts) {
    const auto to = page.find(end, at + begin.size());
    const S script = page.substr(at + begin.size(), to - at - begin.size());
    at = to + end.size();
    S expected;
    if (page.compare(at, printed.size(), printed) == 0) {
      const auto from = at + printed.size();
      expected = page.substr(from, page.find(end, from) - from);
    }
    const auto result = test::RunCommand({"wizard", book, "--script", "-"}, script);
    EXPECT_EQ(result.code, 0) << result.err << script;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, expected) << "run scripts/wizard-page.py";
  }
  EXPECT_GE(scripts, 10);
  std::set<S> types;
  const S charts = test::RunCommand({"charts", book}).out;
  for (const test::Match& type : test::MatchesOf(charts, "  ([a-z ]+) chart on sheet")) types.insert(type[1]);
  EXPECT_EQ(types, (std::set<S>{"area", "bar", "bubble", "column", "pie", "strategic bucket"}));
}

TEST_F(NewcomerTest, TheReadmeNamesEachVerb) {
  std::set<S> named, verbs;
  for (const test::Match& row : test::MatchesOf(readme_, "\n\\| `([a-z-]+)[ `]")) named.insert(row[1]);
  for (const CLI::App* verb : cli::CommandLine().verbs) verbs.insert(verb->get_name());
  EXPECT_EQ(named, verbs);
}

TEST_F(NewcomerTest, LinksAndPathsOfThePagesAreValid) {
  const S link = R"x((?:\]\(|src=")([^)"#:]+))x",
          path = R"(`((?:src|tests|docs|examples|scripts|fuzz|bench)/[A-Za-z/_.-]*[a-z])`)";
  std::vector<fs::path> pages = {kRoot / "README.md"};
  for (const auto& entry : fs::directory_iterator(kRoot / "docs")) {
    if (entry.path().extension() == ".md") pages.push_back(entry.path());
  }
  std::size_t links = 0;
  for (const fs::path& page : pages) {
    const S text = test::BytesOf(page);
    const auto found = test::MatchesOf(text, link);
    links += found.size();
    for (const test::Match& match : found)
      EXPECT_TRUE(fs::exists(page.parent_path() / match[1])) << page << ": " << match[1];
    for (const test::Match& match : test::MatchesOf(text, path))
      EXPECT_TRUE(fs::exists(kRoot / match[1])) << page << ": " << match[1];
  }
  EXPECT_GT(links, 50);
}

}  // namespace
}  // namespace plotsmith
