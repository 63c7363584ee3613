#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace plotsmith::runtime {

/// Makes a path from UTF-8 text. The constructor of a path would use the system's code page on Windows.
inline std::filesystem::path PathOf(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

/// Returns a path as UTF-8 text. It is the inverse of PathOf.
inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace plotsmith::runtime
