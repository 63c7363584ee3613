#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/Buttons.h"
#include "forms/Plain.h"
#include "forms/script/ScriptPlayer.h"
#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/PagesTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using S = std::string;

const fs::path kHelp = fs::path(kSourceFolder) / "docs/help";

/// Returns the words of a text, separated by single blanks.
S Words(const S& text) {
  std::istringstream words(text);
  S result;
  for (S word; words >> word;) result += (result.empty() ? "" : " ") + word;
  return result;
}

/// Returns a message in the format of the help, with "NAME" in place of names.
S WithoutNames(const S& message) { return Words(ReplaceMatches(message, "'(/TKN/|Data[0-9])'", "'NAME'")); }

S TextOf(const pugi::xml_node& node) {
  S text;
  for (const auto& part : node.select_nodes(".//text()")) text += part.node().value();
  return Words(text);
}

/// A help file.
struct HelpFile {
  pugi::xml_document document;
  S text;                 ///< All words.
  std::set<S> described;  ///< The texts of headings, of first cells and list entries, and code in cells.
  std::set<S> cells;      ///< The texts of table cells.
};

HelpFile Read(const S& name) {
  HelpFile file;
  const auto result =
      file.document.load_file((kHelp / name).c_str(), pugi::parse_full | pugi::parse_ws_pcdata);
  EXPECT_TRUE(result) << name << ": " << result.description() << " at " << result.offset;
  file.text = TextOf(file.document.child("html").child("body"));
  for (const auto& node : file.document.select_nodes("//h3 | //td[1]/b | //li/b[1] | //td/code"))
    file.described.insert(TextOf(node.node()));
  for (const auto& node : file.document.select_nodes("//td")) file.cells.insert(TextOf(node.node()));
  return file;
}

/// A row of topics.tsv.
struct TopicRow {
  std::int32_t number;  ///< The number; 0 for a file that no page opens.
  S file, title;
};

std::vector<TopicRow> TopicRows() {
  std::istringstream lines(BytesOf(kHelp / "topics.tsv"));
  std::vector<TopicRow> rows;
  S line;
  std::getline(lines, line);
  EXPECT_EQ(line, "number\tfile\ttitle");
  while (std::getline(lines, line)) {
    std::istringstream fields(line);
    S number;
    TopicRow row;
    std::getline(fields, number, '\t');
    std::getline(fields, row.file, '\t');
    std::getline(fields, row.title);
    row.number = number.empty() ? 0 : std::stoi(number);
    rows.push_back(row);
  }
  return rows;
}

/// The texts of a page when its Help button was pressed.
struct PageTexts {
  S form, caption;
  std::set<S> captions;  ///< The captions of its controls.
  std::set<S> messages;
};
using TextsByTopic = std::map<std::int32_t, PageTexts>;

/// Records the messages, answers Cancel, and stores the last requested topic.
class NotingDesktop final : public cli::ConsoleDesktop {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons, desktop::Icon, std::string_view) override {
    messages.insert(WithoutNames(S(text)));
    return desktop::kCancel;
  }
  void ShowHelp(std::intptr_t, const S&, std::int32_t topic) override { asked = topic; }

  std::set<S> messages;               ///< The messages since the last page was recorded.
  std::optional<std::int32_t> asked;  ///< The requested topic that was not recorded yet.
};

/// The lines of a script. It records the open page each time its Help button was pressed.
class NotingLines final : public forms::LineSource {
 public:
  NotingLines(const S& script, NotingDesktop& desktop, TextsByTopic& texts)
      : lines_(script), desktop_(desktop), texts_(texts) {}

  std::optional<S> NextLine(const forms::ScriptState& state) override {
    if (desktop_.asked && state.page != nullptr) Note(*state.page);
    return lines_.NextLine(state);
  }
  const S& LastLine() const { return lines_.LastLine(); }

 private:
  void Note(const forms::Form& page) {
    PageTexts& texts = texts_[*desktop_.asked];
    desktop_.asked.reset();
    texts.form = page.Name();
    texts.caption = page.Caption();
    for (const forms::Control* control : page.Controls()) {
      const auto* captioned = dynamic_cast<const forms::CaptionControl*>(control);
      if (captioned == nullptr || captioned->Caption().empty()) continue;
      texts.captions.insert(Words(runtime::Replace(captioned->Caption(), "&", "")));
    }
    texts.messages.merge(desktop_.messages);
    desktop_.messages.clear();
  }

  PageLines lines_;
  NotingDesktop& desktop_;
  TextsByTopic& texts_;
};

/// The lines that lead to a page and cause its messages. They end with the Help button.
struct Walk {
  PlainBook book;
  S script;
};

std::vector<Walk> Walks() {
  const PlainBook charts = BookOfCharts({{"Charts", "a"}, {"Charts", "b"}});
  Definition onTexts;
  onTexts.attributes = "table-id=\"Data2\"";
  PlainBook noNumbers = SalesBook({onTexts});
  noNumbers.sheets.push_back({"Data2", {{S("A"), S("B")}, {S("x"), S("y")}}});
  const S badFormat = "type cboDataLabelMask \"0 [\"; press cmdNext; ";
  const S toLocation = "press cmdNew; " + NewChart(1) + "press cmdNext; ";
  std::vector<Walk> walks = {
      {charts, "select grdCharts a; press cmdDelete; select grdCharts a b; press cmdDelete; "},
      {SalesBook({}), "press cmdNext; select grdTables Data1; press cmdNext; "},
      {noNumbers, ModifyChart()},
      {SalesBook({}), NewChart(3) + "select lstCategories; press cmdNext; select lstCategories Region; clear "
                                    "cboValues; press cmdNext; choose cboValues Amount; type cboNumberMask "
                                    "\"0 [\"; press cmdNext; type cboNumberMask \"\"; "},
      {NewBubbleBook(), NewChart(4) + "select lstYValues; press cmdNext; select lstYValues #1; clear "
                                      "cboXValues; press cmdNext; choose cboXValues Up; clear "
                                      "cboCategories; press cmdNext; "},
      {NewBucketBook(), NewChart(5) + "clear cboCategories; press cmdNext; choose cboCategories Project; " +
                            badFormat + "type cboDataLabelMask \"\"; "},
      {charts, toLocation +
                   "type txtName \"\"; press cmdFinish; type txtName A; press cmdFinish; type txtName c; "
                   "clear cboSheet; press cmdFinish; choose optTargetSheet(0); type txtSheet \"\"; press "
                   "cmdFinish; type txtSheet Charts; press cmdFinish; type txtSheet a:b; press cmdFinish; "},
  };
  for (const int type : {0, 1, 2}) {
    walks.push_back(
        {SalesBook({}),
         NewChart(type) +
             "choose optCategories(2); press cmdNext; choose optCategories(1); choose cboCategories "
             "Region; press cmdNext; choose cboValues Amount; choose optSeries(1); choose cboSeries "
             "Region; press cmdNext; choose optSeries(0); " +
             badFormat + "type cboDataLabelMask \"\"; "});
  }
  return walks;
}

/// Returns the texts of at least four words in a source file, which are its messages.
std::set<S> SentencesOf(const S& file) {
  const S comment = "//[^\n]*", literal = "(?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+", seam = "\"\\s*\"",
          lineBreak = R"(\\r\\n)";
  const S source = ReplaceMatches(BytesOf(fs::path(kSourceFolder) / "src" / file), comment, "");
  std::set<S> sentences;
  for (const Match& match : MatchesOf(source, literal)) {
    const S text = ReplaceMatches(ReplaceMatches(match[0], seam, ""), lineBreak, " ");
    const S sentence = WithoutNames(runtime::Replace(text, "\"", ""));
    if (std::ranges::count(sentence, ' ') >= 3) sentences.insert(sentence);
  }
  return sentences;
}

class HelpTopicsTest : public HostTest {
 protected:
  /// Returns the texts of all pages.
  TextsByTopic PagesTexts() {
    TextsByTopic texts;
    for (const Walk& walk : Walks()) {
      Open(walk.book);
      const auto desktop = std::make_shared<NotingDesktop>();
      NotingLines lines(walk.script + "press cmdHelp", *desktop, texts);
      const auto player = std::make_shared<forms::ScriptPlayer>(lines, [](const forms::FormState&) {});
      StartSystem(desktop, player);
      CPlotsmithController().RunPlotsmith(host_, "Test", "");
      player->PlayRest();
      EXPECT_FALSE(player->Failed()) << lines.LastLine() << " -> " << player->Failed()->sentence;
    }
    return texts;
  }
};

TEST_F(HelpTopicsTest, EachTopicNamesTheControlsAndTheMessagesOfItsPage) {
  std::map<std::int32_t, S> fileOf;
  for (const TopicRow& row : TopicRows()) {
    if (row.number == 0) continue;
    EXPECT_TRUE(fileOf.emplace(row.number, row.file).second) << row.number << " is there twice";
    EXPECT_TRUE(row.file.starts_with("topic" + std::to_string(row.number) + "-")) << row.file;
  }
  const TextsByTopic pages = PagesTexts();
  const std::map<std::int32_t, std::size_t> messageCounts = {{1, 2}, {2, 3}, {3, 4}, {4, 4}, {5, 4},
                                                             {6, 3}, {7, 3}, {8, 6}, {18, 2}};
  for (const auto& [topic, count] : messageCounts) EXPECT_TRUE(pages.contains(topic)) << topic;
  EXPECT_EQ(pages.size(), fileOf.size()) << "topics that no page opens";
  std::map<S, S> helpOfForm;  // Area, bar and column share a form and have three topics.
  for (const auto& [topic, page] : pages) {
    ASSERT_TRUE(fileOf.contains(topic)) << page.form << " opens topic " << topic;
    SCOPED_TRACE(fileOf.at(topic));
    const HelpFile help = Read(fileOf.at(topic));
    helpOfForm[page.form] += help.text + "\n";
    EXPECT_NE(help.text.find("\"" + page.caption + "\""), S::npos) << page.caption;
    for (const S& caption : page.captions) EXPECT_TRUE(help.described.contains(caption)) << caption;
    for (const S& message : page.messages) EXPECT_TRUE(help.cells.contains(message)) << message;
    EXPECT_EQ(page.messages.size(), messageCounts.at(topic));
    EXPECT_NE(help.text.find("F1"), S::npos);
  }
  // These messages must be in the help even if no script causes them.
  std::size_t sentences = 0;
  for (const auto& [form, text] : helpOfForm) {
    for (const S& sentence : SentencesOf("pages/" + form + ".cpp")) {
      ++sentences;
      EXPECT_NE(text.find(sentence), S::npos) << form << ": " << sentence;
    }
  }
  EXPECT_GT(sentences, 20u);
}

TEST_F(HelpTopicsTest, MessagesAboutChartsAreExplained) {
  const HelpFile help = Read("refresh.html");
  std::size_t sentences = 0;
  for (const char* file : {"builder/SourceValidation.cpp", "builder/maps/MapSteps.cpp"}) {
    for (const S& sentence : SentencesOf(file)) {
      ++sentences;
      EXPECT_TRUE(help.cells.contains(sentence)) << file << ": " << sentence;
    }
  }
  EXPECT_EQ(sentences, 6u);
}

TEST_F(HelpTopicsTest, TheTableListsAllFilesByTheirTitles) {
  std::set<S> listed, files;
  const HelpFile index = Read("index.html");
  for (const TopicRow& row : TopicRows()) {
    SCOPED_TRACE(row.file);
    listed.insert(row.file);
    const HelpFile help = Read(row.file);
    EXPECT_EQ(help.document.select_node("/html/head/title").node().text().get(), row.title);
    EXPECT_EQ(TextOf(help.document.select_node("/html/body/h1").node()), row.title);
    if (row.file == "index.html") continue;
    const S link = "//a[@href='" + row.file + "']";
    EXPECT_TRUE(index.document.select_node(link.c_str())) << "is not in the index";
  }
  for (const auto& entry : fs::directory_iterator(kHelp)) {
    if (entry.path().extension() == ".html") files.insert(entry.path().filename().string());
  }
  EXPECT_EQ(listed, files);
}

TEST_F(HelpTopicsTest, LinksAndPicturesExist) {
  std::set<S> missing;
  int pictures = 0;
  for (const TopicRow& row : TopicRows()) {
    SCOPED_TRACE(row.file);
    const HelpFile help = Read(row.file);
    for (const auto& link : help.document.select_nodes("//@href"))
      EXPECT_TRUE(fs::exists(kHelp / link.attribute().value())) << link.attribute().value();
    for (const auto& image : help.document.select_nodes("//img")) {
      ++pictures;
      EXPECT_STRNE(image.node().attribute("alt").value(), "");
      const fs::path file = kHelp / image.node().attribute("src").value();
      EXPECT_EQ(file.extension(), ".png") << "viewers of CHM files show no other";
      if (!fs::exists(file)) missing.insert(file.stem().string());
    }
  }
  EXPECT_GT(pictures, 40);
  EXPECT_EQ(missing, std::set<S>());
}

TEST_F(HelpTopicsTest, TheLanguageIsPlain) {
  const S fancy =
      "\\b(WHOEVER|NOBODY|LIKEWISE|STANDS FOR|HANGS ON|UTILI[SZ]E|AFOREMENTIONED|E\\.G\\.|I\\.E\\.)";
  for (const TopicRow& row : TopicRows()) {
    SCOPED_TRACE(row.file);
    const S html = BytesOf(kHelp / row.file);
    EXPECT_TRUE(std::ranges::all_of(html, [](char c) { return static_cast<unsigned char>(c) < 128; }))
        << "write other characters as &#NUMBER;";
    const HelpFile help = Read(row.file);
    EXPECT_EQ(MatchesOf(runtime::UCase(help.text), fancy), std::vector<Match>());
    for (const auto& paragraph : help.document.select_nodes("//p[not(@class)] | //li")) {
      for (const Match& sentence : MatchesOf(TextOf(paragraph.node()), "[^.!?]+[.!?]"))
        EXPECT_LE(std::ranges::count(sentence[0], ' '), 45) << "a long sentence: " << sentence[0];
    }
  }
}

TEST_F(HelpTopicsTest, TheProjectOpensEachTopicByItsNumber) {
  const S script = S(kSourceFolder) + "/scripts/help-project.py ";
  const S folder = folder_ / "help";
  ASSERT_EQ(std::system(("python3 " + script + folder + " 2> " + (folder_ / "err.txt")).c_str()), 0);
  const S project = BytesOf(folder + "/Plotsmith.hhp"), contents = BytesOf(folder + "/Plotsmith.hhc");
  for (const TopicRow& row : TopicRows()) {
    SCOPED_TRACE(row.file);
    EXPECT_EQ(BytesOf(folder + "/help/" + row.file), BytesOf(kHelp / row.file));
    EXPECT_NE(project.find("\nhelp/" + row.file + "\n"), S::npos);
    EXPECT_NE(contents.find("<param name=\"Name\" value=\"" + row.title +
                            "\">\n<param name=\"Local\" value=\"help/" + row.file + "\">"),
              S::npos);
    if (row.number == 0) continue;
    const S number = std::to_string(row.number);
    EXPECT_NE(project.find("\nTOPIC_" + number + "=help/" + row.file + "\n"), S::npos);
    EXPECT_NE(project.find("\n#define TOPIC_" + number + " " + number + "\n"), S::npos);
  }
  std::istringstream lines(project.substr(project.find("[FILES]\n") + 8));
  int files = 0;
  for (S line; std::getline(lines, line) && !line.empty(); ++files)
    EXPECT_TRUE(fs::exists(fs::path(folder) / line)) << line;
  EXPECT_GT(files, 50);
  EXPECT_NE(std::system(("python3 " + script + "/dev/null/help 2> " + (folder_ / "err.txt")).c_str()), 0);
  EXPECT_NE(BytesOf(folder_ / "err.txt").find("/dev/null/help/help can't be written: "), S::npos);
}

}  // namespace
}  // namespace plotsmith
