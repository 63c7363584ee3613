#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/windows/host/HostMembers.h"

namespace {

/// At the end of all tests: the tables have no line that wasn't tried, and every call said which kind it is.
class WholeTables final : public testing::Environment {
  void TearDown() override {
    if (testing::GTEST_FLAG(filter) != "*") return;
    auto notCalled = plotsmith::dress::WaysNotCalled();
    // only the corpus has a sheet without cells, which has the lines of worksheets
    if (!std::filesystem::exists(PLOTSMITH_SOURCE_DIR "/../shared/corpus")) {
      std::erase_if(notCalled, [](const std::string& way) { return way.starts_with("Sheet."); });
    }
    EXPECT_EQ(notCalled, std::vector<std::string>());
    EXPECT_EQ(plotsmith::dress::counts.unsure, 0);
  }
};

}  // namespace

int main(int argc, char** argv) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  testing::InitGoogleTest(&argc, argv);
  testing::AddGlobalTestEnvironment(new WholeTables);
  const int result = RUN_ALL_TESTS();
  CoUninitialize();
  return result;
}
