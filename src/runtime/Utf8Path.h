#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace plotsmith::runtime {

/// The path that UTF-8 text names. Windows would take the text of a path for its own code page.
inline std::filesystem::path PathOf(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

/// A path as UTF-8 text. The reverse of PathOf.
inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace plotsmith::runtime
