#include <QtWidgets/QPushButton>
#include <filesystem>
#include <fstream>

#include "qt/Texts.h"
#include "runtime/Strings.h"
#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"
#include "tests/support/RunCommand.h"
#include "xlsx/package/Package.h"

namespace plotsmith {
namespace {

using S = std::string;
using test::BytesIfThere;
using test::BytesOf;
using test::kNewChart;

/// A way to end a run after a chart was built, and the resulting files. "BOOK" is the workbook, and "OTHER"
/// is a file beside it.
struct Ending {
  S script;
  S seen;  ///< The windows after the pages.
  bool bookChanges, otherIsThere;
  bool withOutput = false;  ///< Whether the program is started with -o OTHER.
};

class WizardProgramTest : public test::ProgramTest {
 protected:
  S Other() { return folder_ / "other.xlsx"; }
  /// Returns the workbook that the command makes with the same actions.
  S BytesByCommand() {
    S script;
    for (const S& line : test::LinesOf(S(kNewChart) + "press cmdFinish")) script += line + "\n";
    const S result = folder_ / "command.xlsx";
    const auto run =
        test::RunCommand({"wizard", folder_ / "start.xlsx", "--script", "-", "-o", result}, script);
    EXPECT_EQ(run.code, 0) << run.err;
    return BytesOf(result);
  }
};

TEST_F(WizardProgramTest, TheBarsAnswerIsCarriedOut) {
  const S start = folder_ / "start.xlsx", pages = "frmPSSelectTable frmPSLayoutABC frmPSChartLocation ";
  std::filesystem::copy_file(book_, start);
  const S wanted = BytesByCommand();
  ASSERT_NE(wanted, fresh_);
  const Ending cases[] = {
      {"bar Save; bar Close", "bar bar", true, false},
      {"bar Discard", "bar", false, false},
      {"bar Save As; file OTHER; bar Close", "bar file bar", false, true},
      {"bar Save As; file OTHER; bar Chart Wizard; close; bar Close", "bar file bar frmPSSelectAction bar",
       false, true},
      {"bar Save As; file BOOK; box Yes; bar Close", "bar file box bar", true, false},
      {"bar Save As; file BOOK; box No; do escape; bar Discard", "bar file box file bar", false, false},
      {"button Save; quit; box Save", "bar box", true, false},
      {"button Save; quit; box Discard", "bar box", false, false},
      {"button Save; quit; box Cancel; bar Save; quit", "bar box bar bar", true, false},
      {"bar Close", "bar", false, true, true},
      {"button Close; quit", "bar", false, true, true},
  };
  for (const auto& [script, seen, bookChanges, otherIsThere, withOutput] : cases) {
    SCOPED_TRACE(script + (withOutput ? " -o" : ""));
    std::filesystem::copy_file(start, book_, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::remove(Other());
    S line = S(kNewChart) + "press cmdFinish; " + script;
    line = runtime::Replace(runtime::Replace(line, "OTHER", Other()), "BOOK", book_);
    const auto run = Run(line, {{"escape", [] { test::FrontWindow()->close(); }}},
                         withOutput ? std::optional(Other()) : std::nullopt);
    EXPECT_EQ(run.seen, pages + seen);
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(BytesOf(book_) == (bookChanges ? wanted : fresh_));
    EXPECT_TRUE(BytesIfThere(Other()) == (otherIsThere ? std::optional(wanted) : std::nullopt));
  }
}

TEST_F(WizardProgramTest, ClosingAsksBeforeItSavesWithAnOutputToo) {
  AddChart();
  const auto run =
      Run("page frmPSSelectAction; select grdCharts #1; press cmdDelete; box OK; page frmPSSelectTable; "
          "quit; box Discard",
          {}, Other());
  EXPECT_EQ(run.seen, "frmPSSelectAction box frmPSSelectTable box");
  EXPECT_FALSE(std::filesystem::exists(Other()));
}

TEST_F(WizardProgramTest, NothingIsSavedWithoutARequest) {
  const struct {
    S script, seen;
  } cases[] = {
      {"page frmPSSelectTable; close", "frmPSSelectTable"},
      {"page frmPSSelectTable; escape", "frmPSSelectTable"},
      {"page frmPSSelectTable; press cmdCancel", "frmPSSelectTable"},
      {"page frmPSSelectTable; quit", "frmPSSelectTable"},
      {"page frmPSSelectTable; do close twice", "frmPSSelectTable"},
      {S(kNewChart) + "quit", "frmPSSelectTable frmPSLayoutABC frmPSChartLocation"},
      {S(kNewChart) + "press cmdBack; page frmPSLayoutABC; close",
       "frmPSSelectTable frmPSLayoutABC frmPSChartLocation frmPSLayoutABC"},
      {"press cmdNext; box OK; close", "frmPSSelectTable box frmPSSelectTable"},
  };
  for (const auto& [script, seen] : cases) {
    SCOPED_TRACE(script);
    const auto twice = [] {
      for (int i = 0; i < 2; ++i) test::BookWindow()->close();
    };
    const auto run = Run(script, {{"close twice", twice}});
    EXPECT_EQ(run.seen, seen);
    EXPECT_TRUE(BytesOf(book_) == fresh_);
  }
}

TEST_F(WizardProgramTest, AFileThatCannotBeWrittenIsReported) {
  const S folder = folder_ / "none";
  const S elsewhere = folder + "/out.xlsx";
  const auto make = [&] { std::filesystem::create_directory(folder); };
  const auto run =
      Run(S(kNewChart) + "press cmdFinish; box OK; bar Save; box OK; do make; bar Save; bar Close",
          {{"make", make}}, elsewhere);
  EXPECT_EQ(run.seen, "frmPSSelectTable frmPSLayoutABC frmPSChartLocation box bar box bar bar");
  ASSERT_EQ(run.told.size(), 5u);
  EXPECT_NE(run.told[0].find("Can't save \"" + elsewhere + "\""), S::npos) << run.told[0];
  EXPECT_EQ(run.told[2], run.told[0]);
  const S line = "plotsmith-wizard: c" + run.told[0].substr(1) + "\n";
  EXPECT_EQ(run.err, line + line);
  EXPECT_NE(BytesOf(elsewhere), "");
  EXPECT_TRUE(BytesOf(book_) == fresh_) << "-o leaves the workbook alone";
}

TEST_F(WizardProgramTest, ALockStopsTheProgramWithTheCommandsMessage) {
  std::ofstream(folder_ / ".~lock.orders.xlsx#") << "someone";
  const auto run = RunFreely("page frmPSSelectTable");
  const auto command = test::RunCommand({"wizard", book_, "--script", "-"}, "close\n");
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(command.code, 3);
  EXPECT_EQ("plotsmith: " + run.err + "\n", command.err);
  EXPECT_EQ(run.seen, "");
}

TEST_F(WizardProgramTest, ProblemsOfDefinitionsAreShownBeforeThePages) {
  test::PlainBook broken = test::SalesBook({{"VEX_Chart1"}});
  broken.sheets.pop_back();
  broken.AddDefinitions({test::Definition{"VEX_Chart1"}.Xml(), "<chart"});
  test::PlainBook twice = test::SalesBook({{"VEX_Chart1"}});
  twice.sheets.push_back({.name = "More", .rows = {}, .frames = {{"VEX_Chart1"}}});
  const struct {
    test::PlainBook book;
    S place, question;
  } cases[] = {
      {broken, "VEX_ChartDefinitions!A3: ", "The wizard would drop these definitions. Continue?"},
      {twice, "More: ", "Charts could be confused with each other. Continue?"},
  };
  for (const auto& [book, place, question] : cases) {
    SCOPED_TRACE(place);
    book.Write(book_);
    fresh_ = BytesOf(book_);
    const auto refused = Run("box Cancel");
    EXPECT_EQ(refused.seen, "box");
    ASSERT_EQ(refused.told.size(), 1u);
    EXPECT_TRUE(refused.told[0].starts_with(place)) << refused.told[0];
    EXPECT_TRUE(refused.told[0].ends_with(".\n\n" + question)) << refused.told[0];
    EXPECT_EQ(Run("box OK; page frmPSSelectAction; close").seen, "box frmPSSelectAction");
    EXPECT_TRUE(BytesOf(book_) == fresh_);
  }
}

TEST_F(WizardProgramTest, DamageStopsTheProgramWithTheCommandsMessage) {
  test::SalesBook({{"VEX_Chart1"}}).Write(book_);
  test::EditPart(book_, "/xl/worksheets/sheet3.xml", [](S& text) { text = "<worksheet><sheetData>"; });
  const auto run = RunFreely("page frmPSSelectAction");
  const auto command = test::RunCommand({"wizard", book_, "--script", "-"}, "close\n");
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(command.code, 3);
  EXPECT_EQ("plotsmith: " + run.err + "\n", command.err);
  EXPECT_EQ(run.seen, "");
}

TEST_F(WizardProgramTest, AnotherRunContinuesFromTheFirst) {
  const S removed =
      "press cmdFinish; bar Save; bar Chart Wizard; page frmPSSelectAction; select grdCharts #1; "
      "press cmdDelete; box OK; page frmPSSelectTable; close; bar Discard";
  const auto run = Run(S(kNewChart) + removed);
  EXPECT_EQ(run.told.back(), "The selected charts were deleted. \"" + book_ + "\" isn't saved yet.");
  const S once = BytesOf(book_);

  // The chart was saved, and its deletion wasn't.
  const S add = "page frmPSSelectAction; press cmdNew; ";
  const S saved =
      "type txtName Second; press cmdFinish; bar Save As; file " + Other() + "; bar Chart Wizard; ";
  const auto second = Run(add + kNewChart + saved + add + kNewChart +
                          "type txtName Third; press cmdFinish; bar Save; bar Close");
  EXPECT_EQ(second.told.back(), "The chart is built. Saved in \"" + Other() + "\".");
  EXPECT_TRUE(BytesOf(book_) == once) << "after Save As, Save writes the other file";
}

TEST_F(WizardProgramTest, EachSaveHasTheContentTypeOfItsExtension) {
  const S run = "page frmPSSelectAction; press cmdNew; " + S(kNewChart) + "type txtName ";
  const S missing = folder_ / "missing/copy.xltx", xltx = folder_ / "Report 23.11.xltx";
  const auto result =
      Run(S(kNewChart) + "press cmdFinish; bar Save As; file " + missing + "; box OK; bar Save As; file " +
          xltx + "; bar Chart Wizard; " + run + "B; press cmdFinish; bar Save As; file " +
          S(folder_ / "Report 23.11.2026") + "; bar Chart Wizard; " + run +
          "C; press cmdFinish; bar Save As; file " + book_ + "; box Yes; bar Close");
  EXPECT_EQ(result.told.back(), "The chart is built. Saved in \"" + book_ + "\".");
  const auto typeOf = [](const S& path) { return xlsx::Package::Open(path).ContentType("/xl/workbook.xml"); };
  const S stem = "application/vnd.openxmlformats-officedocument.spreadsheetml.";
  EXPECT_EQ(typeOf(xltx), stem + "template.main+xml");
  EXPECT_EQ(typeOf(folder_ / "Report 23.11.2026.xlsx"), stem + "sheet.main+xml");
  EXPECT_EQ(typeOf(book_), stem + "sheet.main+xml");
  EXPECT_FALSE(std::filesystem::exists(S(folder_ / "Report 23.11.2026")));
}

TEST_F(WizardProgramTest, AFileOfAnotherProgramIsNotOfferedForReplacement) {
  S changed;
  const auto change = [&] {
    std::ofstream(book_, std::ios::app | std::ios::binary) << "more";
    changed = BytesOf(book_);
  };
  const auto run = Run(S(kNewChart) + "press cmdFinish; button Save; do change; bar Save As; file " + book_ +
                           "; box OK; do escape; bar Discard",
                       {{"change", change}, {"escape", [] { test::FrontWindow()->close(); }}});
  const S unsaved = "The chart is built. \"" + book_ + "\" isn't saved yet.";
  const S refused =
      "Can't save \"" + book_ + "\": another program has changed it since it was read; nothing was changed.";
  EXPECT_EQ(run.told, (std::vector<S>{unsaved, refused, unsaved}));
  EXPECT_TRUE(BytesOf(book_) == changed);
}

TEST_F(WizardProgramTest, StandardOutputGetsOneWorkbook) {
  S buttons;
  const auto look = [&] {
    for (const auto* button : test::FrontWindow()->findChildren<QPushButton*>()) {
      if (button->isVisible()) buttons += qt::TextOf(button->text()) + ";";
    }
  };
  const auto run =
      Run(S(kNewChart) + "press cmdFinish; button Close; do look; bar Close", {{"look", look}}, "-");
  EXPECT_EQ(run.told.back(), "The chart is built. Written to standard output.");
  EXPECT_EQ(buttons, "&Close;");
}

}  // namespace
}  // namespace plotsmith
