#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

namespace plotsmith::fuzz {

/// A workbook of this process alone, for a target to write and to take away.
inline std::string TemporaryBook() {
  return (std::filesystem::temp_directory_path() / ("plotsmith-fuzz-" + std::to_string(getpid()) + ".xlsx"))
      .string();
}

}  // namespace plotsmith::fuzz
