#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <libxml/parser.h>
#include <sys/wait.h>
#include <vector>

#include "cli/render/PictureNames.h"
#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;
using namespace test;
using S = std::string;

/// The contents of another program's chart part: one series of columns.
constexpr const char* kForeignChart =
    "<c:chartSpace xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\"><c:chart>"
    "<c:plotArea><c:barChart><c:barDir val=\"col\"/><c:ser><c:idx val=\"0\"/><c:order val=\"0\"/>"
    "<c:val><c:numLit><c:ptCount val=\"2\"/><c:pt idx=\"0\"><c:v>3</c:v></c:pt><c:pt idx=\"1\"><c:v>5"
    "</c:v></c:pt></c:numLit></c:val></c:ser><c:axId val=\"1\"/><c:axId val=\"2\"/></c:barChart>"
    "<c:catAx><c:axId val=\"1\"/><c:crossAx val=\"2\"/></c:catAx><c:valAx><c:axId val=\"2\"/>"
    "<c:crossAx val=\"1\"/></c:valAx></c:plotArea></c:chart></c:chartSpace>";

/// Returns the format of the bytes.
S FormatOf(const S& bytes) {
  if (bytes.starts_with("\x89PNG\r\n")) return "png";
  if (bytes.starts_with("%PDF-")) return "pdf";
  return bytes.find("<svg ") < 100 ? "svg" : "none";
}

/// The workbook "book.xlsx" in a folder of its own: two refreshed charts of Plotsmith and one of another
/// program, and a sheet of 100 rows.
class RenderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
    book.Sheet("Charts").frames.push_back({"", kForeignChart, 0, 40});
    PlainSheet rows{"Many rows"};
    for (int i = 1; i <= 100; ++i) rows.rows.push_back({S("Row " + std::to_string(i)), double(i)});
    book.sheets.push_back(rows);
    book.sheets.push_back({.name = "Empty"});
    book.Write(book_);
    ASSERT_EQ(RunCommand({"refresh", book_}).code, 0);
    fresh_ = BytesOf(book_);
  }
  void TearDown() override { EXPECT_TRUE(BytesOf(book_) == fresh_) << "the workbook was changed"; }

  /// Runs the command. "BOOK" is the workbook and "DIR" is an empty folder, also in the result.
  CommandResult Run(const std::vector<S>& arguments, Watched watched = Watched::kNothing) {
    fs::remove_all(folder_ / "dir");
    fs::create_directory(folder_ / "dir");
    std::vector<S> words;
    for (const S& argument : arguments)
      words.push_back(runtime::Replace(runtime::Replace(argument, "BOOK", book_), "DIR", folder_ / "dir"));
    CommandResult result = RunCommand(words, "", watched);
    for (S* text : {&result.out, &result.err})
      *text = runtime::Replace(runtime::Replace(*text, book_, "BOOK"), folder_ / "dir", "DIR");
    return result;
  }
  /// Returns the names and formats of the files in the folder, such as "a.svg svg, b.png png".
  S Files() {
    std::vector<S> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder_ / "dir")) {
      if (!entry.is_regular_file()) continue;
      names.push_back(entry.path().filename().string() + " " + FormatOf(BytesOf(entry.path().string())));
    }
    std::sort(names.begin(), names.end());
    S text;
    for (const S& name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
  }

  TempFolder folder_;
  S book_ = folder_ / "book.xlsx";
  S fresh_;
};

TEST(PictureNamesTest, NamesAreSafeShortAndUnique) {
  const struct {
    S book, what, name;
  } cases[] = {
      {"/a/My book.xlsx", "VEX_Chart1", "My-book-VEX_Chart1"},
      {"book.v2.xlsx", "'It''s'!Chart 2", "book.v2-It-s-Chart-2"},
      {"book.xlsx", "../../etc/passwd", "book-etc-passwd"},
      {"book.xlsx", "a\\b:c*?\"<>|\n\t", "book-a-b-c"},
      {"book.xlsx", "...", "book"},
      {"-.xlsx", "$(rm)", "rm"},
      {".xlsx", "", "xlsx"},
      {"book.xlsx",
       "\xC3\x9C"
       "bersicht",
       "book-\xC3\x9C"
       "bersicht"},
      {"book.xlsx", S(99, 'x') + "\xC3\xA4", "book-" + S(99, 'x')},
  };
  for (const auto& c : cases) EXPECT_EQ(PictureNames(c.book).NameFor(c.what), c.name);
  PictureNames names("b.xlsx");
  EXPECT_EQ(names.NameFor("Chart 1"), "b-Chart-1");
  EXPECT_EQ(names.NameFor("chart/1"), "b-chart-1-2");
  EXPECT_EQ(names.NameFor("Chart:1"), "b-Chart-1-3");
}

TEST_F(RenderTest, PicturesGoWhereTheOutputSays) {
  const struct {
    std::vector<S> arguments;  ///< The arguments after the verb.
    S files, out;
  } cases[] = {
      {{"BOOK", "-o", "DIR"},
       "book-VEX_Chart1.svg svg, book-VEX_Chart2.svg svg",
       "DIR/book-VEX_Chart1.svg\nDIR/book-VEX_Chart2.svg\n"},
      {{"BOOK", "-o", "DIR", "--format", "png", "name of vex_chart2"},
       "book-VEX_Chart2.png png",
       "DIR/book-VEX_Chart2.png\n"},
      {{"BOOK", "VEX_Chart2", "VEX_Chart2", "-o", "DIR/a.png"}, "a.png png", ""},
      {{"BOOK", "-o", "DIR/both.pdf"}, "both.pdf pdf", ""},
      {{"BOOK", "VEX_Chart1", "-o", "DIR/picture", "--format", "SVG"}, "picture svg", ""},
      {{"BOOK", "Charts!Chart 3", "'Charts'!chart 3", "-o", "DIR/new/"},
       "book-Charts-Chart-3.svg svg",
       "DIR/new/book-Charts-Chart-3.svg\n"},
      {{"BOOK", "--sheet", "Many rows", "-o", "DIR"},
       "book-Many-rows-1.svg svg, book-Many-rows-2.svg svg, book-Many-rows-3.svg svg",
       "DIR/book-Many-rows-1.svg\nDIR/book-Many-rows-2.svg\nDIR/book-Many-rows-3.svg\n"},
      {{"BOOK", "--sheet", "many rows", "-o", "DIR/rows.pdf"}, "rows.pdf pdf", ""},
      {{"BOOK", "--sheet", "Many rows", "--one-page", "-o", "DIR/rows.png"}, "rows.png png", ""},
  };
  for (const auto& c : cases) {
    const CommandResult result = Run(Joined({"render"}, c.arguments));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(Files(), c.files);
    EXPECT_EQ(result.out, c.out);
  }
}

TEST_F(RenderTest, TheHelpSaysTheFormatThatIsTakenWithoutOne) {
  const struct {
    S verb, format;
  } cases[] = {{"render", "(default: the extension of -o, else svg)"}, {"refresh", "(default: svg)"}};
  for (const auto& c : cases) {
    const S help = RunCommand({c.verb, "--help"}).out;
    EXPECT_NE(help.find("svg, png or pdf " + c.format + "\n"), S::npos) << c.verb << help;
  }
}

TEST_F(RenderTest, AMachineWithoutFontsIsReportedOnce) {
  const S none = folder_ / "fonts.conf", said = folder_ / "said.txt";
  std::ofstream(none) << "<?xml version=\"1.0\"?><fontconfig></fontconfig>";
  const S sentence = "plotsmith: no fonts are installed, so texts are misplaced or missing.\n";
  const struct {
    S environment, arguments;
    int code;
    S err, files;
  } cases[] = {
      {"FONTCONFIG_FILE=" + none, "", 1, sentence, "book-VEX_Chart1.svg svg, book-VEX_Chart2.svg svg"},
      {"FONTCONFIG_FILE=" + none, "--format png VEX_Chart1", 1, sentence, "book-VEX_Chart1.png png"},
      {"FONTCONFIG_FILE=" + none, "--sheet Data1", 1, sentence, "book-Data1.svg svg"},
      {"", "VEX_Chart1", 0, "", "book-VEX_Chart1.svg svg"},
  };
  for (const auto& c : cases) {
    const S folder = folder_ / "dir";
    fs::remove_all(folder);
    const S command = c.environment + " " + kCommand + " render " + book_ + " " + c.arguments + " -o " +
                      folder + "/ > " + (folder_ / "out.txt") + " 2> " + said;
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), c.code) << c.arguments;
    EXPECT_EQ(BytesOf(said), c.err) << c.arguments;
    EXPECT_EQ(Files(), c.files) << c.arguments;
  }
}

TEST_F(RenderTest, WhatCantBeMeantIsRefusedInOneSentence) {
  const S there = "there are VEX_Chart1, VEX_Chart2 and 'Charts!Chart 3'.\n", tooLong(300, 'x');
  const struct {
    std::vector<S> arguments;
    int code;
    S sentence;
  } cases[] = {
      {{"BOOK", "Nothing", "-o", "DIR"}, 2, "\"BOOK\" has no chart 'Nothing'; " + there},
      {{"BOOK", "Data1!Chart 3", "-o", "DIR"}, 2, "\"BOOK\" has no chart 'Data1!Chart 3'; " + there},
      {{"BOOK", "-o", "DIR/a.png"},
       2,
       "\"DIR/a.png\" can contain only one picture, but there are 2 charts; use a folder or a PDF.\n"},
      {{"BOOK", "-o", "-"},
       2,
       "the standard output can contain only one picture, but there are 2 charts; use a folder or a PDF.\n"},
      {{"BOOK", "-o", "DIR/a.gif"},
       2,
       "the name \"DIR/a.gif\" has no known extension: use .svg, .png or .pdf, or --format; the name of a "
       "new folder ends with \"/\".\n"},
      {{"BOOK", "-o", "DIR/a.png", "--format", "svg"},
       2,
       "\"DIR/a.png\" and --format svg are different formats.\n"},
      {{"BOOK", "--format", "gif"}, 2, "--format must be svg, png or pdf, not 'gif'.\n"},
      {{"BOOK", "--dpi", "300", "-o", "DIR"},
       2,
       "--dpi applies only to PNG; --scale enlarges pictures of all formats.\n"},
      {{"BOOK", "--dpi", "nan", "-o", "DIR"},
       2,
       "--dpi needs a number, not 'nan' (try plotsmith render --help)\n"},
      {{"BOOK", "--scale", "1,5", "-o", "DIR"},
       2,
       "--scale needs a number, not '1,5' (try plotsmith render --help)\n"},
      {{"BOOK", "--format", "png", "-o", "DIR/other.XLSX"},
       2,
       "\"DIR/other.XLSX\" is the name of a workbook; a picture ends with .svg, .png or .pdf.\n"},
      {{"BOOK", "--dpi", "9", "-o", "DIR", "--format", "png"}, 2, "--dpi needs a number from 10 to 2400.\n"},
      {{"BOOK", "--scale", "0", "-o", "DIR"}, 2, "--scale needs a number from 0.01 to 100.\n"},
      {{"BOOK", "VEX_Chart1", "--scale", "100", "--dpi", "2400", "-o", "DIR/a.png"},
       2,
       "a picture would have more than a hundred million pixels; use a smaller --dpi or --scale.\n"},
      {{"BOOK", "-o", ""}, 2, "-o needs the name of a file or a folder.\n"},
      {{"BOOK", "-o", tooLong + "/"}, 3, "can't make the folder \"" + tooLong + "/\": File name too long.\n"},
      {{"BOOK", "--sheet", "Nowhere", "-o", "DIR"},
       2,
       "\"BOOK\" has no sheet 'Nowhere'; there are Data1, Charts, VEX_ChartDefinitions, Many rows, Empty and "
       "VEX_ChartData.\n"},
      {{"BOOK", "--sheet", "Empty", "-o", "DIR"}, 2, "the sheet \"Empty\" has nothing to print.\n"},
      {{"BOOK", "--sheet", "Many rows", "-o", "DIR/a.svg"},
       2,
       "\"DIR/a.svg\" can contain only one picture, but there are 3 pages; use a folder or a PDF.\n"},
      {{"BOOK", "VEX_Chart1", "--sheet", "Charts"},
       2,
       "--sheet draws a whole sheet and can't be combined with charts.\n"},
      {{"BOOK", "--one-page"}, 2, "--one-page can only be used with --sheet.\n"},
      {{"BOOK", "VEX_Chart1", "-o", "DIR/no/a.svg"},
       3,
       "can't write \"DIR/no/a.svg\": No such file or directory.\n"},
      {{"BOOK.no", "-o", "DIR"}, 3, "can't read \"BOOK.no\": there is no such file.\n"},
  };
  for (const auto& c : cases) {
    const CommandResult result = Run(Joined({"render"}, c.arguments));
    EXPECT_EQ(result.code, c.code);
    EXPECT_EQ(result.err, "plotsmith: " + c.sentence);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(Files(), "");
  }
  EXPECT_EQ(Run({"render", "BOOK", "VEX_Chart1", "--format", "png", "-o", "-"}, Watched::kEverything).err,
            "plotsmith: a picture isn't written to a terminal; redirect the output, or name a file.\n");
}

TEST_F(RenderTest, TheSameBytesComeOutOfEveryRunToFilesAndToTheStandardOutput) {
  for (const S format : {"svg", "png", "pdf"}) {
    const CommandResult out = Run({"render", "BOOK", "VEX_Chart1", "--format", format, "-o", "-"});
    EXPECT_EQ(out.code, 0) << out.err;
    EXPECT_EQ(FormatOf(out.out), format);
    for (int run = 0; run < 2; ++run) {
      ASSERT_EQ(Run({"render", "BOOK", "VEX_Chart1", "-o", "DIR/a." + format}).code, 0);
      EXPECT_TRUE(BytesOf(folder_ / ("dir/a." + format)) == out.out) << format;
    }
  }
}

TEST_F(RenderTest, SizesFollowScaleAndResolution) {
  const auto png = [&](const std::vector<S>& options) {
    const S bytes = Run(Joined({"render", "BOOK", "VEX_Chart1", "--format", "png", "-o", "-"}, options)).out;
    const auto number = [&](std::size_t at) {
      int value = 0;
      for (std::size_t i = at; i < at + 4; ++i) value = value * 256 + static_cast<unsigned char>(bytes.at(i));
      return value;
    };
    return std::pair(number(16), number(20));  // Width and height in the header.
  };
  const auto [width, height] = png({});
  EXPECT_EQ(png({"--dpi", "192"}), std::pair(2 * width, 2 * height));
  EXPECT_EQ(png({"--scale", "2"}), std::pair(2 * width, 2 * height));
  EXPECT_EQ(png({"--dpi", "48", "--scale", "2"}), std::pair(width, height));
}

TEST_F(RenderTest, SvgIsWellFormedAndSaysItsValues) {
  ASSERT_EQ(Run({"render", "BOOK", "-o", "DIR"}).code, 0);
  for (const auto& entry : fs::directory_iterator(folder_ / "dir")) {
    const S bytes = BytesOf(entry.path().string());
    xmlDocPtr document =
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), "a.svg", nullptr, XML_PARSE_NONET);
    ASSERT_NE(document, nullptr) << bytes;
    xmlFreeDoc(document);
    EXPECT_EQ(CountOf(bytes, "<title>"), CountOf(bytes, "</title>"));
    EXPECT_NE(bytes.find("<desc>"), S::npos);
    EXPECT_NE(bytes.find("West"), S::npos) << "a category of the table";
  }
}

TEST_F(RenderTest, APdfHasAPageForEachChartAndEachPageOfASheet) {
  ASSERT_EQ(Run({"render", "BOOK", "-o", "DIR/a.pdf"}).code, 0);
  EXPECT_EQ(CountOf(BytesOf(folder_ / "dir/a.pdf"), "/Type /Page "), 2u);
  ASSERT_EQ(Run({"render", "BOOK", "--sheet", "Many rows", "-o", "DIR/a.pdf"}).code, 0);
  EXPECT_EQ(CountOf(BytesOf(folder_ / "dir/a.pdf"), "/Type /Page "), 3u);
}

TEST_F(RenderTest, AnExistingPictureIsReplacedAsAWhole) {
  const S folder = folder_ / "kept", picture = folder + "/a.svg", link = folder + "/link.svg";
  ASSERT_EQ(Run({"render", "BOOK", "VEX_Chart1", "-o", "DIR/a.svg"}).code, 0);
  const S fresh = BytesOf(folder_ / "dir/a.svg");
  fs::create_directory(folder);
  fs::create_symlink("a.svg", link);
  for (const std::size_t size : {std::size_t(0), std::size_t(1), fresh.size(), 3 * fresh.size()}) {
    std::ofstream(picture, std::ios::binary) << S(size, 'x');
    ASSERT_EQ(RunCommand({"render", book_, "VEX_Chart1", "-o", link}).code, 0);
    EXPECT_TRUE(BytesOf(picture) == fresh) << size;
    EXPECT_TRUE(fs::is_symlink(link)) << size;
  }
}

TEST_F(RenderTest, APictureWhoseWritingFailsIsRemoved) {
  const S folder = folder_ / "dir", said = folder_ / "said.txt";
  for (const bool isThere : {false, true}) {
    fs::remove_all(folder);
    fs::create_directory(folder);
    if (isThere) std::ofstream(folder + "/a.png") << "before";
    std::ofstream(folder + "/b.svg") << "another picture";
    const S command = "trap '' XFSZ; ulimit -f 4; " + S(kCommand) + " render " +
                      book_ +  // 2 KiB for each file
                      " VEX_Chart1 -o " + folder + "/a.png 2> " + said;
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 3) << isThere;
    EXPECT_EQ(BytesOf(said), "plotsmith: can't write \"" + folder + "/a.png\": File too large.\n") << isThere;
    EXPECT_EQ(Files(), "b.svg none") << isThere;
  }
}

TEST_F(RenderTest, OnlyDefinitionsWithAChartOfTheirOwnAreDrawn) {
  PlainBook book;
  PlainSheet charts{"Charts"};
  for (const S id : {"First", "Second", "FIRST", "Third"})
    charts.frames.push_back({id, kForeignChart, 0, 20 * static_cast<int>(charts.frames.size())});
  book.sheets.push_back(charts);
  book.AddDefinitions({"<chart id=\"Second\" name=\"Two\"/>", "<chart id=\"First\"", "<table id=\"First\"/>",
                       "<chart name=\"No id\"/>", "<chart id=\"Gone\"/>",
                       "<chart id=\"First\" name=\"One\"/>", "<chart id=\"FIRST\" name=\"Again\"/>",
                       "<chart id=\"First\" name=\"Again\"/>"});
  const S path = folder_ / "rows.xlsx";
  book.Write(path);
  const CommandResult all = Run({"render", path, "-o", "DIR"});
  EXPECT_EQ(all.out, "DIR/rows-Second.svg\nDIR/rows-First.svg\n");
  EXPECT_EQ(all.err, "");
  EXPECT_EQ(all.code, 0);
  EXPECT_EQ(Run({"render", path, "one", "-o", "DIR"}).out, "DIR/rows-First.svg\n");
  EXPECT_EQ(Run({"render", path, "again", "-o", "DIR"}).err,
            "plotsmith: \"" + path +
                "\" has no chart 'again'; there are Second, First, 'Charts!Chart 3' and 'Charts!Chart 4'.\n");
}

TEST_F(RenderTest, APictureNeverReplacesTheWorkbook) {
  const S link = folder_ / "link.png", before = BytesOf(book_);
  fs::create_hard_link(book_, link);
  const CommandResult result = RunCommand({"render", book_, "VEX_Chart1", "-o", link});
  EXPECT_EQ(result.err, "plotsmith: \"" + link + "\" is the workbook itself; a picture would replace it.\n");
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(BytesOf(book_), before);
}

TEST_F(RenderTest, AWorkbookWithoutChartsOfPlotsmithNamesTheOthers) {
  PlainBook book;
  book.sheets.push_back({.name = "It's", .frames = {{"", kForeignChart}}});
  const S path = folder_ / "other.xlsx";
  book.Write(path);
  CommandResult result = Run({"render", path, "-o", "DIR"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err, "plotsmith: \"" + path +
                            "\" has no charts of Plotsmith, so nothing was drawn; other charts are drawn if "
                            "you name them: 'It''s'!Chart 1.\n");
  result = Run({"render", path, "'It''s'!Chart 1", "-o", "DIR"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Files(), "other-It-s-Chart-1.svg svg");
}

TEST_F(RenderTest, ARefreshDrawsWhatItHasRefreshed) {
  const struct {
    std::vector<S> options;
    int code;
    S files, err;
  } cases[] = {
      {{"--render", "DIR"}, 0, "book-VEX_Chart1.svg svg, book-VEX_Chart2.svg svg", ""},
      {{"--render", "DIR", "--format", "png", "--dpi", "48"},
       0,
       "book-VEX_Chart1.png png, book-VEX_Chart2.png png",
       ""},
      {{"--format", "png"},
       2,
       "",
       "plotsmith: --format, --dpi and --scale are for the pictures of --render.\n"},
      {{"--render", ""}, 2, "", "plotsmith: --render needs the name of a folder.\n"},
      {{"--render", "a.PNG"},
       2,
       "",
       "plotsmith: --render needs a folder, and \"a.PNG\" looks like a picture. Add \"/\" if the folder has "
       "this name; to write a single file, use plotsmith render -o.\n"},
      {{"--render", "DIR", "--format", "gif"},
       2,
       "",
       "plotsmith: --format must be svg, png or pdf, not 'gif'.\n"},
  };
  for (const auto& c : cases) {
    const CommandResult result = Run(Joined({"refresh", "BOOK", "-o", folder_ / "out.xlsx"}, c.options));
    EXPECT_EQ(result.code, c.code);
    EXPECT_EQ(result.err, c.err);
    EXPECT_EQ(Files(), c.files);
  }
  const S twin = folder_ / "twin";
  fs::create_directory(twin);
  fs::copy_file(book_, twin + "/book.xlsx");
  const CommandResult result = Run({"refresh", "BOOK", twin + "/book.xlsx", "--render", "DIR"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "plotsmith: the charts of \"BOOK\" and \"" + twin +
                            "/book.xlsx\" would have the same names in \"DIR\".\n");
  // If the workbook goes to standard output, nothing else does.
  const CommandResult streamed = Run({"refresh", "BOOK", "-o", "-", "--render", "DIR"});
  EXPECT_EQ(streamed.code, 0);
  EXPECT_TRUE(streamed.out.starts_with("PK"));
  EXPECT_EQ(streamed.out.find("VEX_Chart1.svg"), S::npos);
}

TEST_F(RenderTest, WithoutTheModuleThatDrawsTheCommandSaysSo) {
  fs::create_directory(folder_ / "bin");
  fs::copy_file(kCommand, folder_ / "bin/plotsmith");
  const S err = folder_ / "err.txt";
  struct Case {
    const char *format, *module;
  };
  for (const Case& test : {Case{"svg", "fonts.so"}, Case{"png", "render.so"}, Case{"pdf", "render.so"}}) {
    const int status = std::system(((folder_ / "bin/plotsmith") + " render " + book_ + " --format " +
                                    test.format + " -o " + folder_.Path().string() + " 2> " + err)
                                       .c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2) << test.format;
    EXPECT_EQ(BytesOf(err), "plotsmith: nothing can be drawn: \"" + (folder_ / "lib/plotsmith/") +
                                test.module + "\", which draws, isn't installed.\n");
  }
}

}  // namespace
}  // namespace plotsmith::cli
