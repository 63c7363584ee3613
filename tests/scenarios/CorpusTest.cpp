#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <vector>

#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/RunCommand.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using test::RunCommand;
using S = std::string;

/// The files that can't be opened, and their error messages. The test also fails if one of them can be
/// opened.
const std::map<S, S> kRefused = {
    {"54764-2.xlsx", "it declares a document type"},
    {"60320-protected.xlsx", "encrypted"},
    {"POIFuzzer-5040805309710336.xlsx", "Not a zip archive"},
    {"POIXSSFFuzzer-5265527465181184.xlsx", "checksum is wrong"},
    {"POIXSSFFuzzer-6448258963341312.xlsx", "inconsistent"},
    {"XLSX2CSVFuzzer-5636439151607808.xlsx", "Not a zip archive"},
    {"crash-9bf3cd4bd6f50a8a9339d363c2c7af14b536865c.xlsx", "encrypted"},
    {"duplicate-filename-case-insensitive.xlsx", "two parts with the name"},
    {"duplicate-filename.xlsx", "two parts with the name"},
    {"encryptAES.xlsx", "encrypted"},
    {"invalid.xlsx", "no content types"},
    {"made_empty.xlsx", "it is empty"},
    {"made_encrypted_flag.xlsx", "encrypted"},
    {"made_missing_wb_rels.xlsx", "the part of its sheet Sheet1 is missing"},
    {"made_prefix_junk.xlsx", "Not a zip archive"},
    {"made_text.xlsx", "it is a text file"},
    {"made_truncated_half.xlsx", "Not a zip archive"},
    {"made_truncated_tail.xlsx", "Not a zip archive"},
    {"protect.xlsx", "encrypted"},
    {"xlsx-corrupted.xlsx", "XML is damaged"},
};

std::vector<fs::path> Corpus() {
  std::vector<fs::path> files;
  for (const char* folder : {"charts", "real", "made", "broken"}) {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(fs::path(test::kCorpusFolder) / folder, ignored)) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

class CorpusTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (Corpus().empty()) GTEST_SKIP() << "the corpus is missing";
  }
  /// Returns the parts that differ between the files or exist in only one of them.
  std::set<S> Changed(const S& first, const S& second) {
    const auto before = xlsx::Package::Open(first), after = xlsx::Package::Open(second);
    std::set<S> changed;
    const auto read = [](const xlsx::Package& package, const S& part) -> S {
      try {
        return package.Read(part);
      } catch (const xlsx::PackageError& e) {
        return S("(unreadable) ") + e.what();
      }
    };
    for (const S& part : before.Parts()) {
      if (!after.Has(part) || read(before, part) != read(after, part)) changed.insert(part);
    }
    for (const S& part : after.Parts()) {
      if (!before.Has(part)) changed.insert(part);
    }
    return changed;
  }
  test::TempFolder folder_;
};

TEST_F(CorpusTest, SaveChangesNoPartOfAnyWorkbook) {
  for (const fs::path& path : Corpus()) {
    const S name = path.filename().string(), out = folder_ / ("out" + path.extension().string());
    SCOPED_TRACE(name);
    fs::remove(out);
    const auto [code, printed, err] = RunCommand({"save", path.string(), "-o", out});
    const auto refused = kRefused.find(name);
    if (refused != kRefused.end()) {
      EXPECT_EQ(code, 3);
      EXPECT_NE(err.find(refused->second), S::npos) << err;
      EXPECT_FALSE(fs::exists(out));
      continue;
    }
    ASSERT_EQ(code, 0) << err;
    EXPECT_EQ(Changed(path.string(), out), std::set<S>());
    EXPECT_EQ(xlsx::Package::Open(path.string()).Parts(), xlsx::Package::Open(out).Parts())
        << "order and names";
  }
}

TEST_F(CorpusTest, LibreOfficeOpensTheSavedWorkbooks) {
  if (std::system("command -v soffice > /dev/null 2>&1") != 0) GTEST_SKIP() << "LibreOffice isn't installed";
  fs::create_directory(folder_ / "saved");
  std::set<S> stems;
  for (const fs::path& path : Corpus()) {
    const bool broken = path.parent_path().filename() == "broken";
    // LibreOffice doesn't open the original file either, because its names contain backslashes.
    if (path.filename() == "Zip-Windows-Directory-Separator.xlsx") continue;
    if (broken || kRefused.contains(path.filename().string())) continue;
    const S out = folder_ / ("saved/" + path.filename().string());
    ASSERT_LE(RunCommand({"refresh", path.string(), "-o", out}).code, 1) << path;
    stems.insert(path.stem().string());
  }
  const S command = "soffice -env:UserInstallation=file://" + (folder_ / "profile") +
                    " --headless --convert-to csv --outdir " + (folder_ / "csv") + " " + (folder_ / "saved") +
                    "/* > /dev/null 2>&1";
  EXPECT_EQ(std::system(command.c_str()), 0);
  for (const S& stem : stems) EXPECT_TRUE(fs::exists(folder_ / ("csv/" + stem + ".csv"))) << stem;
}

TEST_F(CorpusTest, RefreshChangesOnlyItsOwnParts) {
  for (const fs::path& path : Corpus()) {
    const S name = path.filename().string(), out = folder_ / ("out" + path.extension().string());
    if (kRefused.contains(name)) continue;
    SCOPED_TRACE(name);
    fs::remove(out);
    const auto [code, printed, err] = RunCommand({"refresh", path.string(), "-o", out});
    if (code == 3) {
      ADD_FAILURE() << err;
      continue;
    }
    // No workbook of the corpus has a definition, so only the sheet for definitions is added, and the palette
    // if there is no chart.
    const auto before = xlsx::Package::Open(path.string());
    for (const S& part : Changed(path.string(), out)) {
      const bool sheet = part.find("/worksheets/") != S::npos && part.ends_with(".xml");
      const S type = before.ContentType(part);
      const bool ours = part == "/[Content_Types].xml" || part.ends_with("workbook.xml.rels") ||
                        type.ends_with("styles+xml") || type.find("main+xml") != S::npos ||
                        (sheet && !before.Has(part));
      EXPECT_TRUE(ours) << part;
    }
  }
}

}  // namespace
}  // namespace plotsmith
