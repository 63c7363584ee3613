#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <vector>

#include "cli/manual/Manual.h"
#include "tests/support/HostTest.h"

namespace plotsmith::cli {
namespace {

using S = std::string;

/// The page as a reader sees it, without the language's marks.
S Unmarked(const S& page) {
  S text = std::regex_replace(page, std::regex(R"(\\f[BIR])"), "");
  text = std::regex_replace(text, std::regex(R"(\\-)"), "-");
  return std::regex_replace(text, std::regex(R"(\\\(aq)"), "'");
}

/// From the first line that begins so to the next line that begins as one of the same kind.
S Piece(const S& text, const S& begin, const S& end) {
  const auto from = text.find("\n" + begin);
  if (from == S::npos) return "";
  return text.substr(from, text.find("\n" + end, from + begin.size()) - from);
}

TEST(ManualTest, ThePageTellsOfEachVerbAndOptionInItsPlace) {
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

TEST(ManualTest, NoLineOfThePageIsMistakenForARequest) {
  std::istringstream page(ManualPage(CommandLine()));
  for (S text; std::getline(page, text);) {
    EXPECT_TRUE(std::regex_search(text, std::regex(R"(^(\.(TH|SH|SS|TP|br)\b|\.\\"|[^.']))"))) << text;
    EXPECT_FALSE(std::regex_search(text, std::regex(R"((^|[^\\])-)"))) << "a bare hyphen: " << text;
  }
}

/// What bash offers at the end of a command line.
class CompletionTest : public ::testing::Test {
 protected:
  CompletionTest() {
    std::ofstream(folder_ / "plotsmith.bash") << BashCompletion(CommandLine());
    for (const char* name : {"book.xlsx", "macro book.xlsm", "notes.txt"})
      std::ofstream(folder_ / name) << "";
  }
  std::vector<S> Offered(const S& words) {
    const S command = "cd '" + folder_.Path().string() +
                      "' && bash --norc -c 'set -u; . ./plotsmith.bash; COMP_WORDS=(" + words +
                      "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _plotsmith; printf \"%s\\n\" " +
                      "\"${COMPREPLY[@]}\" | sort -u' 2>&1";
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

TEST_F(CompletionTest, BashOffersWhatFits) {
  using List = std::vector<S>;
  const std::pair<S, List> cases[] = {
      {"plotsmith re", {"refresh", "rename-columns"}},
      {"plotsmith --force ta", {"tables"}},
      {"plotsmith refresh --ta", {"--table"}},
      {"plotsmith refresh --js", {}},
      {"plotsmith tables --js", {"--json"}},
      {"plotsmith cells --jo", {"--journal"}},
      {"plotsmith refresh \"\"", {"book.xlsx", "macro book.xlsm"}},
      {"plotsmith refresh --table \"\"", {}},
      {"plotsmith save book.xlsx -o no", {"notes.txt"}},
      {"plotsmith format \"\"", {}},
  };
  for (const auto& [words, offered] : cases) EXPECT_EQ(Offered(words), offered) << words;
}

TEST_F(CompletionTest, EveryVerbAndOptionIsOffered) {
  const CommandLine line;
  for (const CLI::App* verb : line.verbs) {
    EXPECT_EQ(Offered("plotsmith " + verb->get_name()), std::vector<S>{verb->get_name()});
    for (const CLI::Option* option : verb->get_options()) {
      if (option->get_positional()) continue;
      const S name = "--" + option->get_lnames().front();
      EXPECT_EQ(Offered("plotsmith " + verb->get_name() + " " + name), std::vector<S>{name});
      EXPECT_NE(ZshCompletion(line).find(name), S::npos) << name;
    }
  }
}

TEST_F(CompletionTest, EachScriptIsGoodForItsShell) {
  std::ofstream(folder_ / "_plotsmith") << ZshCompletion(CommandLine());
  const std::pair<S, S> cases[] = {{"bash", "plotsmith.bash"}, {"zsh", "_plotsmith"}};
  for (const auto& [shell, script] : cases) {
    if (std::system(("command -v " + shell + " >/dev/null").c_str()) != 0) GTEST_SKIP() << "no " << shell;
    EXPECT_EQ(std::system((shell + " -n '" + (folder_ / script) + "'").c_str()), 0);
  }
}

}  // namespace
}  // namespace plotsmith::cli
