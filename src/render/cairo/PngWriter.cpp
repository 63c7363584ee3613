#include "render/cairo/PngWriter.h"

#include <array>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <vector>
#include <zlib.h>

namespace plotsmith::render {
namespace {

constexpr int kCompression = 6;  // zlib's; charts are mostly flat, so that more costs time for nothing

void AppendBigEndian(std::string& out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>(value >> shift);
}

void AppendChunk(std::string& out, const char* type, const std::string& data) {
  AppendBigEndian(out, static_cast<std::uint32_t>(data.size()));
  const std::size_t from = out.size();
  out += type;
  out += data;
  const auto* bytes = reinterpret_cast<const Bytef*>(out.data() + from);
  AppendBigEndian(out, static_cast<std::uint32_t>(crc32(0, bytes, static_cast<uInt>(out.size() - from))));
}

/// The colours of a picture and the index of each in the palette, as far as there are 256.
class Palette {
 public:
  /// Nothing for the 257th colour.
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

/// Rows of palette indices, each behind a filter byte of 0; nothing if there are too many colours.
std::optional<std::string> IndexedRows(const Pixels& pixels, Palette& palette) {
  std::string rows((pixels.width + 1) * pixels.height, '\0');
  char* out = rows.data();
  std::uint32_t last = 0xFF000000;  // no colour
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

/// Rows of colours, each behind a filter byte of 2: as the difference to the row above.
std::string ColorRows(const Pixels& pixels) {
  std::string rows((3 * pixels.width + 1) * pixels.height, '\0');
  char* out = rows.data();
  for (std::size_t y = 0; y < pixels.height; ++y) {
    const std::uint32_t* row = pixels.data + y * pixels.stride;
    const std::uint32_t* above = y > 0 ? row - pixels.stride : nullptr;
    *out++ = 2;
    for (std::size_t x = 0; x < pixels.width; ++x) {
      const std::uint32_t before = above == nullptr ? 0 : above[x];
      for (const int shift : {16, 8, 0}) *out++ = static_cast<char>((row[x] >> shift) - (before >> shift));
    }
  }
  return rows;
}

std::string Deflated(const std::string& rows) {
  uLongf size = compressBound(static_cast<uLong>(rows.size()));
  std::string bytes(size, '\0');
  const int result =
      compress2(reinterpret_cast<Bytef*>(bytes.data()), &size, reinterpret_cast<const Bytef*>(rows.data()),
                static_cast<uLong>(rows.size()), kCompression);
  if (result != Z_OK) throw std::bad_alloc();
  bytes.resize(size);
  return bytes;
}

}  // namespace

std::string EncodePng(const Pixels& pixels, double dpi) {
  Palette palette;
  const auto indexed = IndexedRows(pixels, palette);
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
  AppendChunk(png, "IDAT", Deflated(indexed ? *indexed : ColorRows(pixels)));
  AppendChunk(png, "IEND", {});
  return png;
}

}  // namespace plotsmith::render
