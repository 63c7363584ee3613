#include "render/svg/SvgImage.h"

#include <cstdint>
#include <string_view>

#include "render/Images.h"
#include "render/svg/SvgPaint.h"

namespace plotsmith::render {
namespace {

std::string Base64(std::string_view bytes) {
  constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = 0;
    for (std::size_t j = i; j < i + 3; ++j) {
      group = group << 8 | (j < bytes.size() ? static_cast<std::uint8_t>(bytes[j]) : 0u);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      text += i + j > bytes.size() ? '=' : kDigits[group >> (18 - 6 * j) & 63];
    }
  }
  return text;
}

}  // namespace

std::string ImageElement(const ImageItem& image) {
  if (!IsDrawableImage(image.bytes)) return {};
  const Rect& place = image.place;
  return "<image x=\"" + SvgNumber(place.left) + "\" y=\"" + SvgNumber(place.top) + "\" width=\"" +
         SvgNumber(place.width) + "\" height=\"" + SvgNumber(place.height) +
         "\" preserveAspectRatio=\"none\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
         "xlink:href=\"data:image/png;base64," +
         Base64(image.bytes) + "\"/>\n";
}

}  // namespace plotsmith::render
