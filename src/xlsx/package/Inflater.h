#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace plotsmith::xlsx {

/// Fills a buffer with the next bytes of a source and says how many there were; 0 is the end.
using ByteReader = std::function<std::size_t(char* buffer, std::size_t size)>;

/// Inflates raw deflate data piece by piece, so that the caller's window can stay in the processor's cache.
class Inflater {
 public:
  explicit Inflater(ByteReader source);
  ~Inflater();

  /// Up to `size` inflated bytes; 0 at the end of the data. Throws PackageError if the data is damaged.
  std::size_t Read(char* buffer, std::size_t size);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::xlsx
