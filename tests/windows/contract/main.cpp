#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/windows/host/HostMembers.h"

namespace {

/// Checks at the end that every line of the tables was tried, and that every call specified its kind.
class WholeTables final : public testing::Environment {
  void TearDown() override {
    if (testing::GTEST_FLAG(filter) != "*") return;
    auto notCalled = plotsmith::automation::WaysNotCalled();
    // Only the corpus has a sheet without cells, which needs the lines of worksheets.
    if (!std::filesystem::exists(PLOTSMITH_SOURCE_DIR "/../shared/corpus")) {
      std::erase_if(notCalled, [](const std::string& way) { return way.starts_with("Sheet."); });
    }
    EXPECT_EQ(notCalled, std::vector<std::string>());
    EXPECT_EQ(plotsmith::automation::counts.unsure, 0);
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
