#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;
using S = std::string;

/// The result of a line of the shell.
struct Ended {
  int status;  ///< The exit status in the shell's format: 128 and more is a signal.
  S text;      ///< The text of stdout and stderr.
  bool operator==(const Ended&) const = default;
};

void PrintTo(const Ended& ended, std::ostream* out) { *out << ended.status << ": " << ended.text; }

/// Tests the command alone in a folder, as after an installation.
class OtherProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"bin", "path", "work"}) fs::create_directory(folder_ / name);
    fs::copy_file(test::kCommand, folder_ / "bin/plotsmith");
  }

  /// Writes a shell script with the name of the wizard's program into the folder.
  void PutProgram(const S& folder, const S& lines, bool executable = true) {
    const S path = folder_ / (folder + "/plotsmith-wizard");
    std::ofstream(path) << "#!/bin/sh\n" << lines;
    if (executable) fs::permissions(path, fs::perms::owner_all);
  }

  /// Runs the wizard without a script, in the folder "work".
  Ended Wizard(const S& arguments, const S& path) {
    const S out = folder_ / "out.txt";
    const int status = std::system(("cd " + (folder_ / "work") + "; PATH=" + path +
                                    " ../bin/plotsmith wizard " + arguments + " > " + out + " 2>&1")
                                       .c_str());
    return {WEXITSTATUS(status), test::BytesOf(out)};
  }

  test::TempFolder folder_;
};

TEST_F(OtherProgramTest, TheWizardsProgramGetsTheArgumentsAndItsExitCodeIsReturned) {
  PutProgram("bin", "printf '[%s]' \"$@\"\nexit 7\n");
  const struct {
    S arguments, passed;
  } rows[] = {
      {"book.xlsx", "[--host-version][16][--][book.xlsx]"},
      {"'my book.xlsx' -o 'my out.xlsx'", "[--host-version][16][--output=my out.xlsx][--][my book.xlsx]"},
      {"--force --journal --host-version 11.5 --output=-o.xlsx -- -b.xlsx",
       "[--host-version][11.5][--journal][--force][--output=-o.xlsx][--][-b.xlsx]"},
  };
  for (const auto& row : rows) EXPECT_EQ(Wizard(row.arguments, ""), (Ended{7, row.passed})) << row.arguments;

  PutProgram("bin", "kill -TERM $$\n");
  EXPECT_EQ(Wizard("book.xlsx", "").status, 128 + SIGTERM);
}

TEST_F(OtherProgramTest, TheWizardsProgramIsSearchedBesideTheCommandAndThenInPath) {
  const Ended absent = {2,
                        "plotsmith: the wizard's window is the program plotsmith-wizard, which isn't "
                        "installed; without it, --script FILE runs a script on the wizard's pages, and the "
                        "verbs new, modify, copy and delete operate the pages.\n"};
  const S path = "/none:" + (folder_ / "path");
  EXPECT_EQ(Wizard("book.xlsx", path), absent);
  PutProgram("work", "echo current\n");
  EXPECT_EQ(Wizard("book.xlsx", ":." + path), absent) << "the current folder isn't searched";
  PutProgram("path", "echo path\n", false);
  EXPECT_EQ(Wizard("book.xlsx", path), absent) << "it can't be run";
  PutProgram("path", "echo path\n");
  EXPECT_EQ(Wizard("book.xlsx", path), (Ended{0, "path\n"}));
  PutProgram("bin", "echo beside\n");
  EXPECT_EQ(Wizard("book.xlsx", path), (Ended{0, "beside\n"}));

  std::ofstream(folder_ / "bin/plotsmith-wizard") << "#!/none/shell\n";
  EXPECT_EQ(Wizard("book.xlsx", path),
            (Ended{2, "plotsmith: can't start \"" + (folder_ / "bin/plotsmith-wizard") +
                          "\": No such file or directory.\n"}));
}

/// Each library makes the start of the command slower, and a toolkit costs ten times as much as all others.
TEST_F(OtherProgramTest, TheCommandLoadsNoToolkit) {
  const S list = folder_ / "list.txt";
  ASSERT_EQ(std::system(("ldd " + (folder_ / "bin/plotsmith") + " > " + list).c_str()), 0);
  const S libraries = test::BytesOf(list);
  EXPECT_NE(libraries.find("libpugixml"), S::npos) << libraries;
  for (const char* toolkit : {"Qt", "libX11", "libxcb", "libGL"})
    EXPECT_EQ(libraries.find(toolkit), S::npos) << libraries;
}

}  // namespace
}  // namespace plotsmith::cli
