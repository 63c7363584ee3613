#include "render/cairo/PngWriter.h"

#include <array>
#include <cmath>
#include <cstring>
#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace plotsmith::render {
namespace {

/// The level of ISA-L. The next level takes six times as long, and doesn't make pictures of charts smaller.
constexpr std::uint32_t kCompression = 2;
constexpr std::size_t kCompressionBuffer = ISAL_DEF_LVL2_DEFAULT;

void AppendBigEndian(std::string& out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>(value >> shift);
}

void AppendChunk(std::string& out, const char* type, const std::string& data) {
  AppendBigEndian(out, static_cast<std::uint32_t>(data.size()));
  const std::size_t from = out.size();
  out += type;
  out += data;
  const auto* bytes = reinterpret_cast<const unsigned char*>(out.data() + from);
  AppendBigEndian(out, crc32_gzip_refl(0, bytes, out.size() - from));
}

/// Up to 256 colours of a picture with their indices.
class Palette {
 public:
  /// Returns the index of a colour and adds new colours. Returns nothing for the 257th colour.
  std::optional<std::uint8_t> IndexOf(std::uint32_t color) {
    std::size_t slot = (color * 2654435761u) >> 22;
    while (slots_[slot] >= 0) {
      const auto index = static_cast<std::size_t>(slots_[slot]);
      if (colors_[index] == color) return static_cast<std::uint8_t>(index);
      slot = (slot + 1) % slots_.size();
    }
    if (colors_.size() == 256) return std::nullopt;
    slots_[slot] = static_cast<std::int16_t>(colors_.size());
    colors_.push_back(color);
    return static_cast<std::uint8_t>(colors_.size() - 1);
  }
  std::string Bytes() const {
    std::string bytes;
    for (const std::uint32_t color : colors_) {
      for (const int shift : {16, 8, 0}) bytes += static_cast<char>(color >> shift);
    }
    return bytes;
  }
  Palette() { slots_.fill(-1); }

 private:
  std::array<std::int16_t, 1024> slots_;
  std::vector<std::uint32_t> colors_;
};

/// Returns rows of palette indices, each after a filter byte of 0. Returns nothing if there are too many
/// colours.
std::optional<std::string> IndexedRows(const Pixels& pixels, Palette& palette) {
  std::string rows((pixels.width + 1) * pixels.height, '\0');
  char* out = rows.data();
  std::uint32_t last = 0xFF000000;  // isn't a colour
  char index = 0;
  for (std::size_t y = 0; y < pixels.height; ++y) {
    const std::uint32_t* row = pixels.data + y * pixels.stride;
    ++out;
    for (std::size_t x = 0; x < pixels.width; ++x) {
      const std::uint32_t color = row[x] & 0xFFFFFF;
      if (color != last) {
        const auto found = palette.IndexOf(color);
        if (!found) return std::nullopt;
        index = static_cast<char>(*found);
        last = color;
      }
      *out++ = index;
    }
  }
  return rows;
}

/// Returns rows of colours, each after a filter byte of 2, which means differences from the row above.
std::string ColorRows(const Pixels& pixels) {
  const std::size_t length = 3 * pixels.width + 1;
  std::string rows(length * pixels.height, '\0');
  const std::vector<std::uint32_t> black(pixels.width);
  const std::uint32_t* above = black.data();
  for (std::size_t y = 0; y < pixels.height; ++y) {
    const std::uint32_t* row = pixels.data + y * pixels.stride;
    char* out = rows.data() + y * length;
    *out++ = 2;
    // Most rows of a chart equal the row above, so the differences stay 0.
    if (std::memcmp(row, above, pixels.width * sizeof(*row)) != 0) {
      for (std::size_t x = 0; x < pixels.width; ++x) {
        for (const int shift : {16, 8, 0})
          *out++ = static_cast<char>((row[x] >> shift) - (above[x] >> shift));
      }
    }
    above = row;
  }
  return rows;
}

/// Returns the bytes compressed in the zlib format.
std::string Deflated(std::string& rows) {
  // A block of stored bytes has a header of 5 bytes, and the format adds 6 bytes.
  constexpr std::size_t kStored = 32 * 1024, kAround = 64;
  std::string bytes(rows.size() + (rows.size() / kStored + 1) * 5 + kAround, '\0');
  std::vector<std::uint8_t> buffer(kCompressionBuffer);
  isal_zstream stream;
  isal_deflate_init(&stream);
  stream.level = kCompression;
  stream.level_buf = buffer.data();
  stream.level_buf_size = static_cast<std::uint32_t>(buffer.size());
  stream.gzip_flag = IGZIP_ZLIB;
  stream.end_of_stream = 1;
  stream.next_in = reinterpret_cast<std::uint8_t*>(rows.data());
  stream.avail_in = static_cast<std::uint32_t>(rows.size());
  stream.next_out = reinterpret_cast<std::uint8_t*>(bytes.data());
  stream.avail_out = static_cast<std::uint32_t>(bytes.size());
  if (isal_deflate(&stream) != COMP_OK || stream.internal_state.state != ZSTATE_END)
    throw std::runtime_error("The pixels of a picture can't be compressed.");
  bytes.resize(stream.total_out);
  return bytes;
}

}  // namespace

std::string EncodePng(const Pixels& pixels, double dpi) {
  Palette palette;
  auto indexed = IndexedRows(pixels, palette);
  std::string header;
  AppendBigEndian(header, static_cast<std::uint32_t>(pixels.width));
  AppendBigEndian(header, static_cast<std::uint32_t>(pixels.height));
  const char colorType = indexed ? 3 : 2;
  header += {8, colorType, 0, 0, 0};
  std::string density;
  const auto perMeter = static_cast<std::uint32_t>(std::lround(dpi / 0.0254));
  AppendBigEndian(density, perMeter);
  AppendBigEndian(density, perMeter);
  density += '\1';
  std::string png = "\x89PNG\r\n\x1A\n";
  AppendChunk(png, "IHDR", header);
  AppendChunk(png, "pHYs", density);
  if (indexed) AppendChunk(png, "PLTE", palette.Bytes());
  std::string rows = indexed ? std::move(*indexed) : ColorRows(pixels);
  AppendChunk(png, "IDAT", Deflated(rows));
  AppendChunk(png, "IEND", {});
  return png;
}

}  // namespace plotsmith::render
