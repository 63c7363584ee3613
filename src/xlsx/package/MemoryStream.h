#pragma once

#include <algorithm>
#include <string_view>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// Reads bytes in memory as a stream, at most `piece` of them at a time. The bytes must outlive the stream.
class MemoryStream final : public Archive::Stream {
 public:
  /// Makes a stream of `bytes`.
  explicit MemoryStream(std::string_view bytes, std::size_t piece = std::string_view::npos)
      : rest_(bytes), piece_(piece) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = rest_.copy(buffer, std::min(size, piece_));
    rest_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view rest_;
  std::size_t piece_;
};

}  // namespace plotsmith::xlsx
