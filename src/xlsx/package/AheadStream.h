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

/// The bytes of another stream, which a thread inflates ahead of the reader. Short streams, and all streams
/// where there is one processor only, are read without a thread. Nothing else may use the archive of the
/// stream meanwhile.
class AheadStream final : public Archive::Stream {
 public:
  explicit AheadStream(Archive::Stream& source) : source_(source) {}
  /// Waits for the thread, which stops after the piece that it reads.
  ~AheadStream() override;
  AheadStream(const AheadStream&) = delete;
  AheadStream& operator=(const AheadStream&) = delete;

  /// Throws what the other stream threw, behind the bytes that came before.
  std::size_t Read(char* buffer, std::size_t size) override;

 private:
  struct Piece {
    std::vector<char> bytes;
    std::size_t size = 0;  ///< 0 at the end of the stream, and where it failed
  };

  void Start();
  void ReadAhead();

  Archive::Stream& source_;
  std::size_t readInline_ = 0;
  bool startTried_ = false;
  std::thread thread_;
  std::array<Piece, 8> pieces_;  ///< a ring
  std::size_t position_ = 0;     ///< in the piece that is being taken

  std::mutex mutex_;
  std::condition_variable filledOne_, emptiedSome_;
  std::size_t filled_ = 0, taken_ = 0;  ///< counts of pieces
  bool stopping_ = false;
  std::exception_ptr failure_;  ///< at the last piece that was filled
};

}  // namespace plotsmith::xlsx
