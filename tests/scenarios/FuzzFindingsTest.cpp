#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "fuzz/Targets.h"

namespace plotsmith {
namespace {

/// Inputs that the fuzzers once found, each of which crashed, hung or ate memory.
TEST(FuzzFindingsTest, WhatOnceFailedIsMended) {
  for (const fuzz::Target& target : fuzz::kTargets) {
    const auto folder = std::filesystem::path(PLOTSMITH_SOURCE_DIR) / "fuzz" / "findings" / target.name;
    if (!std::filesystem::is_directory(folder)) continue;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      SCOPED_TRACE(entry.path().string());
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes((std::istreambuf_iterator<char>(file)), {});
      target.run(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
  }
}

}  // namespace
}  // namespace plotsmith
