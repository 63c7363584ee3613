#include <chrono>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "cli/CommandLine.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

/// Whoever kills the program during a save finds the old workbook or the new one, whole.
TEST(KillTest, AKilledSaveLeavesAWholeWorkbook) {
  test::TempFolder folder;
  test::PlainBook book = test::SalesBook({{"VEX_Chart1"}});
  std::string noise;
  for (unsigned i = 0, x = 1; i < 4'000'000; ++i)
    noise += static_cast<char>((x = x * 1664525 + 1013904223) >> 24);
  book.extraParts = {{"xl/media/noise.bin", noise}};
  const std::string path = folder / "book.xlsx";
  book.Write(path);
  int killed = 0;
  for (int round = 0; round < 40; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      execl(PLOTSMITH_COMMAND, "plotsmith", "refresh", path.c_str(), nullptr);
      _exit(127);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(round));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    killed += WIFSIGNALED(status) ? 1 : 0;
    ASSERT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    const auto package = xlsx::Package::Open(path);
    for (const std::string& part : package.Parts()) ASSERT_NO_THROW(package.Read(part)) << part;
  }
  EXPECT_GT(killed, 0) << "the program was always done before it could be killed";
}

}  // namespace
}  // namespace plotsmith
