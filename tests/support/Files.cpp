#include "tests/support/Files.h"

#include <fstream>
#include <gtest/gtest.h>

namespace plotsmith::test {

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary | std::ios::ate);
  EXPECT_TRUE(stream) << file;
  std::string bytes(stream ? static_cast<std::size_t>(stream.tellg()) : 0, '\0');
  stream.seekg(0);
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

std::optional<std::string> BytesIfThere(const std::filesystem::path& file) {
  return std::filesystem::exists(file) ? std::optional(BytesOf(file)) : std::nullopt;
}

}  // namespace plotsmith::test
