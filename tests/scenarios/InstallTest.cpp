#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>

#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using S = std::string;

/// Installs into a temporary folder. It installs a component, so that the file list of a developer's own
/// installation isn't changed.
class InstallTest : public ::testing::Test {
 protected:
  static int Shell(const S& command) { return std::system((command + " > /dev/null").c_str()); }
  std::set<S> Files() const {
    std::set<S> files;
    for (const auto& entry : fs::recursive_directory_iterator(prefix_)) {
      if (!entry.is_directory()) files.insert(fs::relative(entry.path(), prefix_).string());
    }
    return files;
  }

  test::TempFolder folder_;
  const fs::path prefix_ = folder_.Path() / "a prefix";
};

TEST_F(InstallTest, EveryFileIsInstalledAndRemoved) {
  const S build = test::kBuildFolder;
  ASSERT_EQ(Shell("cmake --install '" + build + "' --component command --prefix '" + prefix_.string() + "'"),
            0);
  const std::set<S> files = Files();
  for (const char* file :
       {"bin/plotsmith", "lib/plotsmith/fonts.so", "lib/plotsmith/render.so", "share/man/man1/plotsmith.1",
        "share/bash-completion/completions/plotsmith", "share/zsh/site-functions/_plotsmith",
        "share/doc/plotsmith/README.md", "share/doc/plotsmith/docs/file-formats.md",
        "share/doc/plotsmith/docs/images/orders.svg"}) {
    EXPECT_TRUE(files.contains(file)) << file;
  }
  const S command = "'" + (prefix_ / "bin/plotsmith").string() + "'", book = folder_ / "book.xlsx";
  EXPECT_EQ(Shell(command + " --version"), 0);
  EXPECT_EQ(Shell(command + " refresh '" + test::kSourceFolder + "/examples/investments.xlsx' -o " + book),
            0);
  EXPECT_EQ(Shell(command + " render " + book + " -o " + (folder_ / "charts.pdf")), 0);

  // Links between pages, and to pictures and examples, must be valid.
  std::size_t links = 0;
  for (const S& file : files) {
    if (!file.ends_with(".md")) continue;
    const auto found = test::MatchesOf(test::BytesOf(prefix_ / file), R"x((?:\]\(|src=")([^)"#:]+))x");
    links += found.size();
    for (const test::Match& link : found)
      EXPECT_TRUE(fs::exists((prefix_ / file).parent_path() / link[1])) << file << ": " << link[1];
  }
  EXPECT_GT(links, 50);

  std::ofstream(prefix_ / "share/man/man1/other.1") << "of another program";
  ASSERT_EQ(
      Shell(S(test::kSourceFolder) + "/scripts/uninstall.sh '" + build + "/install_manifest_command.txt'"),
      0);
  EXPECT_EQ(Files(), std::set<S>{"share/man/man1/other.1"});
  EXPECT_FALSE(fs::exists(prefix_ / "share/doc/plotsmith"));
  EXPECT_FALSE(fs::exists(prefix_ / "lib/plotsmith"));
}

}  // namespace
}  // namespace plotsmith
