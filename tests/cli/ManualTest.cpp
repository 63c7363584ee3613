#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

#include "cli/manual/Manual.h"
#include "runtime/Strings.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::cli {
namespace {

using S = std::string;

/// Returns the page as a reader sees it, without markup.
S Unmarked(const S& page) {
  const S text = test::ReplaceMatches(page, R"(\\f[BIR])", "");
  return runtime::Replace(runtime::Replace(text, R"(\-)", "-"), R"(\(aq)", "'");
}

/// Returns the text from the first line that begins with `begin` to the next line that begins with `end`.
S Piece(const S& text, const S& begin, const S& end) {
  const auto from = text.find("\n" + begin);
  if (from == S::npos) return "";
  return text.substr(from, text.find("\n" + end, from + begin.size()) - from);
}

TEST(ManualTest, ThePageDescribesEachVerbAndOption) {
  const CommandLine line;
  const S page = Unmarked(ManualPage(line));
  ASSERT_GE(line.verbs.size(), 8u);
  for (const CLI::App* verb : line.verbs) {
    const S piece = Piece(page, ".SS " + verb->get_name() + "\n", ".S");
    EXPECT_NE(piece.find(verb->get_description()), S::npos) << verb->get_name();
    EXPECT_NE(page.find("plotsmith " + verb->get_name() + " "), S::npos) << verb->get_name();
    for (const CLI::Option* option : verb->get_options()) {
      if (option == verb->get_help_ptr()) continue;
      const S name = option->get_positional() ? option->get_name(true) : "--" + option->get_lnames().front();
      EXPECT_NE(piece.find(name), S::npos) << verb->get_name() << ' ' << name;
      EXPECT_NE(piece.find(option->get_description()), S::npos) << verb->get_name() << ' ' << name;
    }
  }
  const S common = Piece(page, ".SH OPTIONS", ".SH");
  for (const CLI::Option* option : line.app.get_options()) {
    EXPECT_NE(common.find("--" + option->get_lnames().front()), S::npos) << option->get_name();
  }
  EXPECT_NE(page.find("\nplotsmith rename-columns BOOK OLD=NEW... --table ID [-o FILE]\n"), S::npos) << page;
  EXPECT_NE(page.find("\nplotsmith format [FORMAT VALUE] [--tsv] [--date1904]\n"), S::npos);
}

TEST(ManualTest, NoLineOfThePageIsAnAccidentalRequest) {
  std::istringstream page(ManualPage(CommandLine()));
  for (S text; std::getline(page, text);) {
    EXPECT_TRUE(test::IsMatch(text, R"((\.(TH|SH|SS|TP|br)\b|\.\\"|[^.']).*)")) << text;
    EXPECT_FALSE(test::IsMatch(text, R"((|.*[^\\])-.*)")) << "a bare hyphen: " << text;
  }
}

/// Tests the completions that bash offers at the end of a command line.
class CompletionTest : public ::testing::Test {
 protected:
  CompletionTest() {
    std::ofstream(folder_ / "plotsmith.bash") << BashCompletion(CommandLine());
    for (const char* name : {"book.xlsx", "macro book.xlsm", "notes.txt", "plan.xltx", "plan.xltm"})
      std::ofstream(folder_ / name) << "";
    std::filesystem::create_directory(folder_ / "folder");
  }
  std::vector<S> Offered(const S& words) {
    std::ofstream(folder_ / "ask.bash") << "set -u\n. ./plotsmith.bash\nCOMP_WORDS=(" << words
                                        << ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_plotsmith\nprintf "
                                           "'%s\\n' \"${COMPREPLY[@]}\" | sort -u\n";
    const S command = "cd '" + folder_.Path().string() + "' && LC_ALL=C bash --norc ask.bash 2>&1";
    std::vector<S> lines;
    FILE* pipe = popen(command.c_str(), "r");
    char buffer[512];
    while (std::fgets(buffer, sizeof buffer, pipe)) {
      const S text(buffer, std::char_traits<char>::length(buffer) - 1);
      if (!text.empty()) lines.push_back(text);
    }
    pclose(pipe);
    return lines;
  }
  test::TempFolder folder_;
};

TEST_F(CompletionTest, BashOffersMatchingWords) {
  using List = std::vector<S>;
  const std::pair<S, List> cases[] = {
      {"plotsmith re", {"refresh", "rename-columns", "render"}},
      {"plotsmith --force ta", {"tables"}},
      {"plotsmith refresh --ta", {"--table"}},
      {"plotsmith refresh --js", {}},
      {"plotsmith tables --js", {"--json"}},
      {"plotsmith cells --jo", {"--journal"}},
      {"plotsmith refresh \"\"", {"book.xlsx", "folder", "macro book.xlsm", "plan.xltm", "plan.xltx"}},
      {"plotsmith refresh --table \"\"", {}},
      {"plotsmith save book.xlsx -o no", {"notes.txt"}},
      {"plotsmith format \"\"", {}},
      {"plotsmith render book.xlsx --format p", {"pdf", "png"}},
      {"plotsmith refresh book.xlsx --render fol", {"folder"}},
      {"plotsmith refresh book.xlsx --render no", {}},
  };
  for (const auto& [words, offered] : cases) EXPECT_EQ(Offered(words), offered) << words;
}

/// Tests a verb that has all arguments that are completed from a workbook.
class BookCompletionTest : public CompletionTest {
 protected:
  BookCompletionTest() {
    CommandLine line;
    CLI::App* verb = line.app.add_subcommand("draw", "Draw");
    line.verbs.push_back(verb);
    verb->add_option("BOOK", text_);
    verb->add_option("CHART", texts_);
    verb->add_option("--table", text_)->type_name("ID");
    verb->add_option("--bucket-table", text_)->type_name("ID");
    verb->add_option("--type", text_)->type_name("TYPE");
    verb->add_option("--values", text_)->type_name("COL");
    verb->add_option("--series-columns", texts_)->type_name("COL");
    std::ofstream(folder_ / "plotsmith.bash") << BashCompletion(line);
    std::ofstream(folder_ / "_plotsmith") << ZshCompletion(line);
    auto book = test::BucketBook(test::BucketDefinition());
    book.Sheet("Data1").rows[0].push_back(S("Sum in \"$\" & more"));
    book.Write(folder_ / "my book.xlsx");
  }
  S text_;
  std::vector<S> texts_;
};

TEST_F(BookCompletionTest, TheCommandListsTheContentsOfAWorkbook) {
  const S book = folder_ / "my book.xlsx";
  using List = std::vector<S>;
  const std::pair<List, S> cases[] = {
      {{"tables", book}, "VEX_SB1\nData1\n"},
      {{"charts", book}, "VEX_Chart1\nName of VEX_Chart1\n"},
      {{"columns", book}, "bucket\nSUM\nProject\nTheme\nBucket\nSum\nRank\nSum in \"$\" & more\n"},
      {{"columns", book, "--table", "vex_sb1"}, "bucket\nSUM\n"},
      {{"columns", book, "--table", "Gone"}, ""},
      {{"dances", book}, ""},
      {{"tables", folder_ / "notes.txt"}, ""},
      {{"tables"}, ""},
      {{}, ""}};
  for (const auto& [arguments, out] : cases) {
    const auto result = test::RunCommand(test::Joined({"complete"}, arguments));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, out);
    EXPECT_EQ(result.err, "");
  }
  EXPECT_EQ(test::RunCommand({"--help"}).out.find("complete"), S::npos);
}

TEST_F(BookCompletionTest, BashAsksTheWorkbook) {
  using List = std::vector<S>;
  const S draw = S(test::kCommand) + " draw";
  const List charts = {R"(Name\ of\ VEX_Chart1)", "VEX_Chart1"};
  const S quotedBook = "'my book.xlsx'", sum = R"(Sum\ in\ \"\$\"\ \&\ more)";
  // The words as they were typed. The last one may be incomplete.
  const std::pair<List, List> cases[] = {
      {{quotedBook, "--table", ""}, {"Data1", "VEX_SB1"}},
      {{R"(my\ book.xlsx)", "--table", "D"}, {"Data1"}},
      {{R"("my book.xlsx")", "--bucket-table", "=", "VEX"}, {"VEX_SB1"}},
      {{R"("my book.xlsx")", "--bucket-table", "="}, {"Data1", "VEX_SB1"}},
      {{quotedBook, ""}, charts},
      {{quotedBook, "VEX_Chart1", "N"}, {charts[0]}},
      {{quotedBook, R"(Name\ of)"}, {charts[0]}},
      {{quotedBook, "'Name o"}, {"Name of VEX_Chart1"}},
      {{quotedBook, "--table", "Data1", "--values", ""}, {"Bucket", "Project", "Rank", "Sum", sum, "Theme"}},
      {{quotedBook, "--table", "VEX_SB1", "--values", ""}, {"SUM", "bucket"}},
      {{"--table", "Data1", quotedBook, "--series-columns", "Rank", "Th"}, {"Theme"}},
      {{quotedBook, "--values", "\"Sum "}, {R"(Sum in \"\$\" & more)"}},
      {{quotedBook, "--values", "Rank", "VEX"}, {"VEX_Chart1"}},
      {{quotedBook, "--type", "s"}, {R"(strategic\ bucket)"}},
      {{"--table", ""}, {}},
      {{"notes.txt", "--table", ""}, {}},
      {{quotedBook, "--s"}, {"--series-columns"}}};
  for (const auto& [words, offered] : cases) {
    S line = draw;
    for (const S& word : words) line += " '" + runtime::Replace(word, "'", R"('\'')") + "'";
    EXPECT_EQ(Offered(line), offered) << line;
  }
}

TEST_F(BookCompletionTest, ZshCallsTheFunctionsOfItsScript) {
  const S script = test::BytesOf(folder_ / "_plotsmith");
  for (const S word : {"tables", "charts", "columns", "types"}) {
    EXPECT_NE(script.find("\n_plotsmith_" + word + "() {"), S::npos) << word;
    EXPECT_NE(script.find(":_plotsmith_" + word + "'"), S::npos) << word;
  }
}

TEST_F(CompletionTest, EveryVerbAndOptionIsOffered) {
  const CommandLine line;
  for (const CLI::App* verb : line.verbs) {
    EXPECT_EQ(Offered("plotsmith " + verb->get_name()), std::vector<S>{verb->get_name()});
    for (const CLI::Option* option : verb->get_options()) {
      if (option->get_positional()) continue;
      const S name = "--" + option->get_lnames().front();
      // An option may be the beginning of another one.
      const auto offered = Offered("plotsmith " + verb->get_name() + " " + name);
      EXPECT_EQ(std::count(offered.begin(), offered.end(), name), 1) << verb->get_name() << ' ' << name;
      for (const S& other : offered) EXPECT_TRUE(other.starts_with(name)) << other;
      EXPECT_NE(ZshCompletion(line).find(name), S::npos) << name;
    }
  }
}

TEST_F(CompletionTest, TheScriptForZshIsValid) {
  if (std::system("command -v zsh >/dev/null") != 0) GTEST_SKIP() << "no zsh";
  std::ofstream(folder_ / "_plotsmith") << ZshCompletion(CommandLine());
  EXPECT_EQ(std::system(("zsh -n '" + (folder_ / "_plotsmith") + "'").c_str()), 0);
}

}  // namespace
}  // namespace plotsmith::cli
