#include <chrono>
#include <filesystem>
#include <fstream>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using S = std::string;

class KillTest : public ::testing::Test {
 protected:
  KillTest() : path_(folder_ / "book.xlsx") {
    test::PlainBook book = test::SalesBook({{"VEX_Chart1"}});
    S noise;
    for (unsigned i = 0, x = 1; i < 4'000'000; ++i)
      noise += static_cast<char>((x = x * 1664525 + 1013904223) >> 24);
    book.extraParts = {{"xl/media/noise.bin", noise}};
    book.Write(path_);
  }
  pid_t Start() {
    const pid_t child = fork();
    if (child == 0) {
      execl(test::kCommand, "plotsmith", "refresh", path_.c_str(), nullptr);
      _exit(127);
    }
    return child;
  }
  /// Returns true if the process has a file in the folder open that has no name or isn't the workbook.
  bool IsSaving(pid_t process) const {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/proc/" + std::to_string(process) + "/fd", ignored)) {
      const S target = fs::read_symlink(entry.path(), ignored).string();
      if (target != path_ && target.starts_with(folder_.Path().string() + "/")) return true;
    }
    return false;
  }
  /// Returns the files beside the workbook.
  std::vector<S> Others() const {
    std::vector<S> others;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      if (entry.path() != path_) others.push_back(entry.path());
    }
    return others;
  }

  test::TempFolder folder_;
  S path_;
};

/// If the program is killed during a save, either the complete old or the complete new workbook exists, and
/// no other file.
TEST_F(KillTest, AKilledSaveLeavesTheOldWorkbookOrTheNewOne) {
  const S before = test::BytesOf(path_);
  int status = 0;
  const auto start = std::chrono::steady_clock::now();
  ASSERT_EQ(waitpid(Start(), &status, 0) > 0 ? status : -1, 0);
  const auto wholeRun = std::chrono::steady_clock::now() - start;
  const S after = test::BytesOf(path_);
  ASSERT_TRUE(after != before);
  int killedBefore = 0, killedAfter = 0, leftBehind = 0;
  constexpr int kRounds =
      30;  // Most rounds kill the program soon after the save has begun, and the last one after its end.
  for (int round = 0; round < kRounds; ++round) {
    std::ofstream(path_, std::ios::binary) << before;
    const pid_t child = Start();
    ASSERT_GT(child, 0);
    while (waitpid(child, &status, WNOHANG) == 0 && !IsSaving(child)) {
    }
    std::this_thread::sleep_for(wholeRun * 2 * round * round / (kRounds * kRounds));
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    const S found = test::BytesOf(path_);
    EXPECT_TRUE(found == before || found == after) << "round " << round;
    ++(found == after ? killedAfter : killedBefore);
    // During the rename, the new workbook has two names for some microseconds.
    for (const S& other : Others()) {
      EXPECT_TRUE(test::BytesOf(other) == after) << "round " << round << ' ' << other;
      fs::remove(other);
      ++leftBehind;
    }
  }
  EXPECT_GT(killedBefore, 0) << "the program always ended before it could be killed";
  EXPECT_GT(killedAfter, 0) << "the program never reached its end";
  EXPECT_LT(leftBehind, 3) << "the incomplete file has a name";
}

}  // namespace
}  // namespace plotsmith
