#include "render/Images.h"

#include <cstddef>
#include <cstdint>

namespace plotsmith::render {

std::optional<ImageSize> SizeOfImage(std::string_view bytes) {
  constexpr std::string_view kStart = "\x89PNG\r\n\x1a\n";
  constexpr std::size_t kWidthAt = 16, kHeightAt = 20, kHeader = 24;
  constexpr std::size_t kMostBytes = 8 * 1024 * 1024;
  constexpr std::uint64_t kMostPixels = 16'000'000;  // A small file may expand to many pixels.
  if (!bytes.starts_with(kStart) || bytes.size() < kHeader || bytes.size() > kMostBytes) return std::nullopt;
  const auto number = [&](std::size_t at) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return value;
  };
  const std::uint64_t width = number(kWidthAt), height = number(kHeightAt);
  const bool drawable =
      width > 0 && height > 0 && width <= 32767 && height <= 32767 && width * height <= kMostPixels;
  if (!drawable) return std::nullopt;
  return ImageSize{static_cast<double>(width), static_cast<double>(height)};
}

bool IsDrawableImage(std::string_view bytes) { return SizeOfImage(bytes).has_value(); }

}  // namespace plotsmith::render
