#include "xlsx/package/Inflater.h"

#include <array>
#include <isa-l/igzip_lib.h>
#include <utility>

#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

struct Inflater::State {
  explicit State(ByteReader reader) : source(std::move(reader)) { isal_inflate_init(&stream); }

  ByteReader source;
  inflate_state stream;
  std::array<char, 64 * 1024> input;
  bool sourceEnded = false;
};

Inflater::Inflater(ByteReader source) : state_(std::make_unique<State>(std::move(source))) {}

Inflater::~Inflater() = default;

std::size_t Inflater::Read(char* buffer, std::size_t size) {
  auto& stream = state_->stream;
  stream.next_out = reinterpret_cast<std::uint8_t*>(buffer);
  stream.avail_out = static_cast<std::uint32_t>(size);
  while (stream.avail_out > 0 && stream.block_state != ISAL_BLOCK_FINISH) {
    if (stream.avail_in == 0 && !state_->sourceEnded) {
      const std::size_t count = state_->source(state_->input.data(), state_->input.size());
      state_->sourceEnded = count == 0;
      stream.next_in = reinterpret_cast<std::uint8_t*>(state_->input.data());
      stream.avail_in = static_cast<std::uint32_t>(count);
    }
    const auto before = stream.avail_out;
    if (isal_inflate(&stream) != ISAL_DECOMP_OK) throw PackageError("its compressed data is damaged");
    if (state_->sourceEnded && stream.avail_out == before && stream.block_state != ISAL_BLOCK_FINISH) {
      throw PackageError("its compressed data ends too early");
    }
  }
  return size - stream.avail_out;
}

}  // namespace plotsmith::xlsx
