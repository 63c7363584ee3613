#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "runtime/Utf8Path.h"

namespace plotsmith::xlsx {

/// The size of a file and the time of its last change, by which a change of the file is noticed.
struct FileStamp {
  std::uintmax_t size = 0;  ///< The size in bytes.
  std::filesystem::file_time_type
      time;  ///< The time of the last change, as exact as the file system stores it.
  bool operator==(const FileStamp&) const = default;

  /// Returns the stamp of a file as it is now, or nothing if there is no such file.
  static std::optional<FileStamp> Of(const std::string& path) {
    std::error_code error;
    const auto file = runtime::PathOf(path);
    const FileStamp stamp{std::filesystem::file_size(file, error),
                          std::filesystem::last_write_time(file, error)};
    return error ? std::nullopt : std::optional(stamp);
  }
};

}  // namespace plotsmith::xlsx
