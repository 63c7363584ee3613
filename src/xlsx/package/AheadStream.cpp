#include "xlsx/package/AheadStream.h"

#include <algorithm>
#include <cstring>
#include <system_error>

#include "runtime/Processors.h"

namespace plotsmith::xlsx {
namespace {

/// Reading a smaller stream takes less time than starting a thread.
constexpr std::size_t kReadInline = 1024 * 1024;
constexpr std::size_t kPiece = 128 * 1024;  // All pieces fit into a processor's cache.

}  // namespace

AheadStream::~AheadStream() {
  if (!thread_.joinable()) return;
  {
    const std::scoped_lock lock(mutex_);
    stopping_ = true;
  }
  emptiedSome_.notify_one();
  thread_.join();
}

void AheadStream::Start() {
  startTried_ = true;
  if (runtime::ProcessorCount() < 2) return;
  for (Piece& piece : pieces_) piece.bytes.resize(kPiece);
  try {
    thread_ = std::thread([this] { ReadAhead(); });
  } catch (const std::system_error&) {
    // Without a thread, Read reads the source itself.
  }
}

std::size_t AheadStream::Read(char* buffer, std::size_t size) {
  if (!startTried_ && readInline_ >= kReadInline) Start();
  if (!thread_.joinable()) {
    const std::size_t count = source_.Read(buffer, size);
    readInline_ += count;
    return count;
  }
  std::unique_lock lock(mutex_);
  filledOne_.wait(lock, [&] { return filled_ > taken_; });
  const Piece& piece = pieces_[taken_ % pieces_.size()];
  if (piece.size == 0) {  // The last piece stays in the queue. Every further read finds the end there.
    if (failure_) std::rethrow_exception(failure_);
    return 0;
  }
  lock.unlock();
  const std::size_t count = std::min(size, piece.size - position_);
  std::memcpy(buffer, piece.bytes.data() + position_, count);
  position_ += count;
  if (position_ < piece.size) return count;
  position_ = 0;
  lock.lock();
  ++taken_;
  // Waking the thread for each piece would take longer than for several pieces.
  const bool isHalfEmpty = filled_ - taken_ <= pieces_.size() / 2;
  lock.unlock();
  if (isHalfEmpty) emptiedSome_.notify_one();
  return count;
}

void AheadStream::ReadAhead() {
  for (bool ended = false; !ended;) {
    std::unique_lock lock(mutex_);
    emptiedSome_.wait(lock, [&] { return stopping_ || filled_ - taken_ < pieces_.size(); });
    if (stopping_) return;
    Piece& piece = pieces_[filled_ % pieces_.size()];
    lock.unlock();
    std::exception_ptr failure;
    try {
      piece.size = source_.Read(piece.bytes.data(), piece.bytes.size());
    } catch (...) {
      piece.size = 0;
      failure = std::current_exception();
    }
    ended = piece.size == 0;
    lock.lock();
    failure_ = failure;
    ++filled_;
    lock.unlock();
    filledOne_.notify_one();
  }
}

}  // namespace plotsmith::xlsx
