#include <filesystem>
#include <fstream>
#include <vector>

#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/PackageComplaints.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;

/// Tests the outputs of the verbs.
class OutputTest : public VerbsTest {
 protected:
  S WriteSales() { return Write(SalesBook({{"VEX_Chart1"}})); }
  S WriteWithMacros() {
    const S path = Write(SalesBook({{"VEX_Chart1"}}), "macros.xlsm");
    auto package = xlsx::Package::Open(path);
    package.Add("/xl/vbaProject.bin", "application/vnd.ms-office.vbaProject", "macros");
    package.AddRelationship("/xl/workbook.xml",
                            "http://schemas.microsoft.com/office/2006/relationships/vbaProject",
                            "/xl/vbaProject.bin");
    package.SetContentType("/xl/workbook.xml", "application/vnd.ms-excel.sheet.macroEnabled.main+xml");
    package.Save(path);
    return path;
  }
  static S MainType(const S& path) { return xlsx::Package::Open(path).ContentType("/xl/workbook.xml"); }
  /// Returns each verb that writes a workbook, without its output.
  std::vector<std::vector<S>> WritingVerbs(const S& book) {
    const S script = folder_ / "steps.txt";
    const auto made = RunCommand({"delete", book, "VEX_Chart1", "--print-script"});
    std::ofstream(script) << made.out;
    return {{"refresh", book},
            {"save", book},
            {"new", book, "--table", "Data1", "--type", "column", "--title", "Other", "--new-sheet", "More"},
            {"modify", book, "VEX_Chart1", "--title", "Other"},
            {"copy", book, "VEX_Chart1", "--title", "Other", "--new-sheet", "More"},
            {"delete", book, "VEX_Chart1"},
            {"wizard", book, "--script", script, "--show"},
            {"rename-columns", book, "--table", "Data1", "Cost=Price"}};
  }
};

TEST_F(OutputTest, EachWritingVerbWritesTheSameToTheStandardOutputAsToAFile) {
  const S book = WriteSales(), file = folder_ / "file.xlsx";
  ASSERT_EQ(RunCommand({"refresh", book}).code, 0);
  const S before = BytesOf(book);
  for (const std::vector<S>& verb : WritingVerbs(book)) {
    SCOPED_TRACE(verb.front());
    const CommandResult saved = RunCommand(Joined(verb, {"-o", file, "--journal"}));
    const CommandResult printed = RunCommand(Joined(verb, {"-o", "-", "--journal"}));
    EXPECT_LE(printed.code, 1) << printed.err;
    EXPECT_EQ(printed.code, saved.code);
    EXPECT_EQ(printed.out, BytesOf(file)) << "there is no other output";
    EXPECT_EQ(printed.err, saved.out + saved.err) << "the output and the messages";
    EXPECT_EQ(BytesOf(book), before);
    std::filesystem::remove(file);
  }
  EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(OutputTest, AWorkbookIsNotWrittenToATerminal) {
  const S book = WriteSales();
  for (const std::vector<S>& verb : WritingVerbs(book)) {
    const CommandResult refused = RunCommand(Joined(verb, {"-o", "-"}), "", Watched::kEverything);
    EXPECT_EQ(refused.code, 2) << verb.front();
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err,
              "plotsmith: a workbook isn't written to a terminal; redirect the output, or name a file.\n");
  }
}

TEST_F(OutputTest, TheContentTypeFollowsTheExtension) {
  const S stem = "application/vnd.openxmlformats-officedocument.spreadsheetml.";
  const std::pair<S, S> types[] = {{"xlsx", stem + "sheet.main+xml"},
                                   {"xltx", stem + "template.main+xml"},
                                   {"xlsm", "application/vnd.ms-excel.sheet.macroEnabled.main+xml"},
                                   {"xltm", "application/vnd.ms-excel.template.macroEnabled.main+xml"}};
  S book = WriteSales();
  for (const auto& from : types) {
    const S source = folder_ / ("from." + from.first);
    ASSERT_EQ(RunCommand({"save", book, "-o", source}).code, 0);
    for (const auto& to : types) {
      const S out = folder_ / ("out." + runtime::UCase(to.first));
      const CommandResult saved = RunCommand({"refresh", source, "-o", out});
      EXPECT_EQ(saved.code, 0) << saved.err;
      EXPECT_EQ(MainType(out), to.second) << "from " << from.first;
      EXPECT_EQ(PackageComplaints(out), "");
    }
    EXPECT_EQ(MainType(source), from.second);
  }
}

TEST_F(OutputTest, UnsuitableExtensionsAreRefusedBeforeTheWork) {
  const S plain = WriteSales(), macros = WriteWithMacros();
  const S hasMacros = "the workbook has macros, which a file with the extension ",
          hold = " can't contain; use .xlsm";
  const struct {
    S book, out, reason;
  } cases[] = {
      {macros, "out.xlsx", hasMacros + ".xlsx" + hold},
      {macros, "out.XLTX", hasMacros + ".xltx" + hold},
      {plain, "out.ods", "a workbook can't be written as .ods, only as .xlsx, .xlsm, .xltx or .xltm"},
      {plain, "out.txt", "a workbook can't be written as .txt, only as .xlsx, .xlsm, .xltx or .xltm"},
      {plain, "out.XLS", "a workbook can't be written as .xls, only as .xlsx, .xlsm, .xltx or .xltm"}};
  for (const auto& refused : cases) {
    const S out = folder_ / refused.out;
    const CommandResult result = RunCommand({"refresh", refused.book, "-o", out, "--journal"});
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err,
              "plotsmith: can't save \"" + out + "\": " + refused.reason + "; nothing was changed.\n");
    EXPECT_EQ(result.out, "") << "no work was done";
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  for (const char* out : {"out.xlsm", "out.xltm", "out.bak"}) {
    EXPECT_EQ(RunCommand({"refresh", macros, "-o", folder_ / out}).code, 0) << out;
    EXPECT_EQ(xlsx::Package::Open(folder_ / out).Read("/xl/vbaProject.bin"), "macros");
  }
  EXPECT_EQ(RunCommand({"refresh", macros}).code, 0);
}

}  // namespace
}  // namespace plotsmith::cli
