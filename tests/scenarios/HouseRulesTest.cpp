#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "tests/support/Paths.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;

const std::set<std::string> kSystem = {"common", "metadata", "builder", "readback", "pages", "controller"};

/// The rooms that each room of the house may look into, itself not counted.
const std::map<std::string, std::set<std::string>> kAllowed = {
    {"runtime", {}},
    {"dom", {"runtime"}},
    {"forms", {"runtime"}},
    {"host", {"runtime"}},
    {"common", {"runtime", "dom", "forms", "host"}},
    {"readback", {"runtime", "dom", "host", "common"}},
    {"metadata", {"runtime", "dom", "host", "common", "readback"}},
    {"builder", {"runtime", "dom", "host", "common", "metadata"}},
    {"pages", {"runtime", "dom", "forms", "host", "common", "metadata"}},
    {"controller", {"runtime", "dom", "forms", "host", "common", "metadata", "builder", "pages"}},
    {"xlsx", {"runtime", "dom", "host"}},
    {"cli",
     {"runtime", "dom", "forms", "host", "common", "metadata", "builder", "readback", "pages", "controller",
      "xlsx"}},
    {"qt",
     {"runtime", "dom", "forms", "host", "common", "metadata", "builder", "readback", "pages", "controller",
      "xlsx", "cli"}},
    {"windows",
     {"runtime", "dom", "forms", "host", "common", "metadata", "builder", "readback", "pages", "controller"}},
};

/// The rooms, and the folders of the component inside Excel, that each of those folders may look into, itself
/// not counted.
const std::map<std::string, std::set<std::string>> kAllowedInExcel = {
    {"com", {"runtime"}},
    {"excel", {"runtime", "host", "windows/com"}},
    {"desktop", {"runtime", "host", "common", "forms", "windows/com"}},
    {"views", {"runtime", "host", "common", "forms", "pages", "windows/com", "windows/desktop"}},
    {"server",
     {"runtime", "host", "common", "forms", "controller", "windows/com", "windows/excel", "windows/desktop",
      "windows/views"}},
    {"dll", {"windows/com", "windows/server"}},
};

/// The rooms and the folders of its own that each folder of the windows may look into, itself not counted.
/// Folders that aren't here put everything together.
const std::map<std::string, std::set<std::string>> kAllowedInWindows = {
    {"forms", {"runtime", "forms", "pages"}},
    {"book", {"runtime", "host", "xlsx"}},
    {"help", {"runtime"}},
};
const std::set<std::string> kWindowPrograms = {"wizard", "shots"};

/// The folders that each folder of the embedded host may look into, itself not counted; "" holds the objects
/// of the workbook, which stand above all of them and which shapes and charts have for parents.
const std::map<std::string, std::set<std::string>> kAllowedInHost = {
    {"package", {}},
    {"numberformat", {}},
    {"sheet", {"package", "numberformat"}},
    {"drawing", {"package", ""}},
    {"chart", {"package", "numberformat", "drawing", ""}},
    {"", {"package", "numberformat", "sheet", "drawing", "chart"}},
};

template <class Visit>
void ForEachSource(const Visit& visit) {
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(test::kSourceFolder) / "src")) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    const auto relative = fs::relative(entry.path(), fs::path(test::kSourceFolder) / "src");
    std::ifstream file(entry.path());
    visit(relative.begin()->string(), relative.string(),
          std::string(std::istreambuf_iterator<char>(file), {}));
  }
}

TEST(HouseRulesTest, RoomsLookOnlyWhereTheyMay) {
  const std::regex include("#include \"([a-z]+)/");
  int files = 0;
  ForEachSource([&](const std::string& room, const std::string& file, const std::string& text) {
    ++files;
    ASSERT_TRUE(kAllowed.contains(room)) << "a room that nobody has drawn: " << file;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), include); it != std::sregex_iterator();
         ++it) {
      const std::string other = (*it)[1];
      EXPECT_TRUE(other == room || kAllowed.at(room).contains(other)) << file << " includes " << other;
    }
  });
  EXPECT_GT(files, 100);
}

TEST(HouseRulesTest, TheEmbeddedHostStandsInLayers) {
  const std::regex include("#include \"xlsx/(?:([a-z]+)/)?([A-Za-z]+\\.h)\"");
  ForEachSource([&](const std::string& room, const std::string& file, const std::string& text) {
    if (room != "xlsx") return;
    const std::string folder = fs::path(file).parent_path().lexically_relative("xlsx").string();
    const std::string own = folder == "." ? "" : folder;
    ASSERT_TRUE(kAllowedInHost.contains(own)) << "a folder that nobody has drawn: " << file;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), include); it != std::sregex_iterator();
         ++it) {
      const std::string other = (*it)[1];
      if ((*it)[2] == "Limits.h") continue;  // constants, for all
      EXPECT_TRUE(other == own || kAllowedInHost.at(own).contains(other)) << file << " includes " << (*it)[0];
    }
  });
}

TEST(HouseRulesTest, ThePartsOfTheWindowsKnowOnlyWhatTheyShow) {
  const std::regex include("#include \"(qt/)?([a-z]+)/([A-Za-z/]+)\\.h\"");
  int files = 0;
  ForEachSource([&](const std::string& room, const std::string& file, const std::string& text) {
    if (room != "qt") return;
    ++files;
    const std::string folder = fs::path(file).parent_path().lexically_relative("qt").string();
    if (kWindowPrograms.contains(folder)) return;
    ASSERT_TRUE(kAllowedInWindows.contains(folder)) << "a folder that isn't listed: " << file;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), include); it != std::sregex_iterator();
         ++it) {
      const bool isWindow = (*it)[1].matched;
      const std::string other = (*it)[2];
      EXPECT_TRUE(isWindow ? other == folder : kAllowedInWindows.at(folder).contains(other))
          << file << " includes " << (*it)[0];
      if (folder == "forms" && other == "pages") {
        const std::string header = (*it)[3];
        EXPECT_TRUE(header == "SamplePictures" || header.starts_with("pictures/")) << file << ' ' << header;
      }
    }
  });
  EXPECT_GT(files, 30);
}

TEST(HouseRulesTest, TheComponentInsideExcelStandsInLayers) {
  const std::regex include("#include \"((?:windows/)?[a-z]+)/");
  int files = 0;
  ForEachSource([&](const std::string& room, const std::string& file, const std::string& text) {
    if (room != "windows") return;
    ++files;
    const std::string folder = fs::path(file).parent_path().lexically_relative("windows").begin()->string();
    ASSERT_TRUE(kAllowedInExcel.contains(folder)) << "a folder that isn't listed: " << file;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), include); it != std::sregex_iterator();
         ++it) {
      const std::string other = (*it)[1];
      EXPECT_TRUE(other == "windows/" + folder || kAllowedInExcel.at(folder).contains(other))
          << file << " includes " << other;
    }
  });
  EXPECT_GT(files, 30);
}

TEST(HouseRulesTest, TheSystemCatchesOnlyInItsErrorBlocks) {
  ForEachSource([&](const std::string& room, const std::string& file, const std::string& text) {
    if (!kSystem.contains(room) || file == "common/ErrorBlocks.h") return;
    EXPECT_EQ(text.find("catch ("), std::string::npos) << file;
  });
}

}  // namespace
}  // namespace plotsmith
