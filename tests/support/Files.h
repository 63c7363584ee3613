#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace plotsmith::test {

/// Returns the bytes of a file. A missing file fails the test.
std::string BytesOf(const std::filesystem::path& file);
/// Returns the bytes of a file; absent if there is none.
std::optional<std::string> BytesIfThere(const std::filesystem::path& file);

}  // namespace plotsmith::test
