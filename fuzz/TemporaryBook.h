#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

namespace plotsmith::fuzz {

/// Returns the path of a workbook that only this process uses.
inline std::string TemporaryBook() {
  return (std::filesystem::temp_directory_path() / ("plotsmith-fuzz-" + std::to_string(getpid()) + ".xlsx"))
      .string();
}

}  // namespace plotsmith::fuzz
