#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include "fuzz/Targets.h"
#include "tests/support/Files.h"
#include "tests/support/Paths.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;

/// Runs inputs that have caused a crash, a hang or unbounded memory use. The fuzzers have found them, or they
/// were written for errors that were found in another way.
TEST(FuzzFindingsTest, FormerFailuresSucceed) {
  const fs::path findings = fs::path(test::kSourceFolder) / "fuzz" / "findings";
  std::set<std::string> folders, targets;
  for (const auto& folder : fs::directory_iterator(findings)) folders.insert(folder.path().filename());
  for (const fuzz::Target& target : fuzz::kTargets) {
    targets.insert(target.name);
    int inputs = 0;
    for (const auto& entry : fs::directory_iterator(findings / target.name)) {
      if (entry.path().filename().string().starts_with('.')) continue;
      SCOPED_TRACE(entry.path().string());
      const std::string bytes = test::BytesOf(entry.path());
      EXPECT_FALSE(bytes.empty());
      target.run(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++inputs;
    }
    EXPECT_GT(inputs, 0) << target.name;
  }
  EXPECT_EQ(folders, targets) << "scripts/fuzz.sh runs a fuzzer for each folder";
}

}  // namespace
}  // namespace plotsmith
