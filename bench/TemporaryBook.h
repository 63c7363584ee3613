#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

#include "bench/Books.h"

namespace plotsmith::bench {

/// A data workbook in a file that is deleted after the benchmark.
class TemporaryBook {
 public:
  explicit TemporaryBook(std::uint32_t rows, std::uint32_t charts = 1)
      : path_(std::filesystem::temp_directory_path() /
              ("plotsmith-bench-" + std::to_string(getpid()) + ".xlsx")) {
    WriteDataBook(path_, rows, charts);
  }
  ~TemporaryBook() { std::filesystem::remove(path_); }
  TemporaryBook(const TemporaryBook&) = delete;
  TemporaryBook& operator=(const TemporaryBook&) = delete;

  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace plotsmith::bench
