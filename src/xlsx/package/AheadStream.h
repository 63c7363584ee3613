#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "xlsx/package/Archive.h"

namespace plotsmith::xlsx {

/// Reads another stream in a thread, ahead of the reader. Short streams, and all streams on a machine with
/// one processor, are read without a thread. No other code may use the stream's archive meanwhile.
class AheadStream final : public Archive::Stream {
 public:
  /// Reads ahead from `source`, which must outlive this stream.
  explicit AheadStream(Archive::Stream& source) : source_(source) {}
  /// Stops the thread after its current piece, and waits for it.
  ~AheadStream() override;
  AheadStream(const AheadStream&) = delete;
  AheadStream& operator=(const AheadStream&) = delete;

  /// Rethrows an exception of the other stream, after the bytes that preceded it.
  std::size_t Read(char* buffer, std::size_t size) override;

 private:
  struct Piece {
    std::vector<char> bytes;
    std::size_t size = 0;  ///< 0 at the end of the stream and at a failure.
  };

  void Start();
  void ReadAhead();

  Archive::Stream& source_;
  std::size_t readInline_ = 0;
  bool startTried_ = false;
  std::thread thread_;
  std::array<Piece, 8> pieces_;  ///< A ring buffer.
  std::size_t position_ = 0;     ///< The offset in the piece that is being read.

  std::mutex mutex_;
  std::condition_variable filledOne_, emptiedSome_;
  std::size_t filled_ = 0, taken_ = 0;  ///< The numbers of pieces that were filled and taken since the start.
  bool stopping_ = false;
  std::exception_ptr failure_;  ///< Belongs to the last filled piece.
};

}  // namespace plotsmith::xlsx
