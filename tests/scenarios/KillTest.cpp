#include <chrono>
#include <filesystem>
#include <fstream>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "tests/support/HostTest.h"

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
      execl(PLOTSMITH_COMMAND, "plotsmith", "refresh", path_.c_str(), nullptr);
      _exit(127);
    }
    return child;
  }
  /// The file that is being written beside the workbook, or "".
  S Temporary() const {
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      if (entry.path() != path_) return entry.path();
    }
    return "";
  }
  S Bytes() const {
    std::ifstream file(path_, std::ios::binary);
    return S(std::istreambuf_iterator<char>(file), {});
  }

  test::TempFolder folder_;
  S path_;
};

/// Whoever kills the program during a save finds the old workbook or the new one, whole.
TEST_F(KillTest, AKilledSaveLeavesTheOldWorkbookOrTheNewOne) {
  const S before = Bytes();
  int status = 0;
  const auto start = std::chrono::steady_clock::now();
  ASSERT_EQ(waitpid(Start(), &status, 0) > 0 ? status : -1, 0);
  const auto wholeRun = std::chrono::steady_clock::now() - start;
  const S after = Bytes();
  ASSERT_TRUE(after != before);
  int killedBefore = 0, killedAfter = 0;
  constexpr int kRounds = 30;  // most of them soon after the save has begun, the last when it is over
  for (int round = 0; round < kRounds; ++round) {
    std::ofstream(path_, std::ios::binary) << before;
    const pid_t child = Start();
    ASSERT_GT(child, 0);
    while (Temporary().empty() && waitpid(child, &status, WNOHANG) == 0) {
    }
    std::this_thread::sleep_for(wholeRun * 2 * round * round / (kRounds * kRounds));
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    const S left = Temporary();
    EXPECT_TRUE(Bytes() == (left.empty() ? after : before)) << "round " << round << ' ' << left;
    ++(left.empty() ? killedAfter : killedBefore);
    if (!left.empty()) fs::remove(left);
  }
  EXPECT_GT(killedBefore, 0) << "the program was always done before it could be killed";
  EXPECT_GT(killedAfter, 0) << "the program never came to its end";
}

}  // namespace
}  // namespace plotsmith
