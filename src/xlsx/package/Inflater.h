#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace plotsmith::xlsx {

/// Fills a buffer with the next bytes of a source. Returns their number; 0 at the end.
using ByteReader = std::function<std::size_t(char* buffer, std::size_t size)>;

/// Inflates raw deflate data (RFC 1951) piece by piece, so that the caller's buffer can stay in the
/// processor's cache.
class Inflater {
 public:
  /// Makes an inflater that takes its data from `source`.
  explicit Inflater(ByteReader source);
  ~Inflater();

  /// Reads up to `size` inflated bytes. Returns their number; 0 at the end. Throws PackageError if the data
  /// is damaged.
  std::size_t Read(char* buffer, std::size_t size);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::xlsx
