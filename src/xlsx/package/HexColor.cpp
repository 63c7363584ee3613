#include "xlsx/package/HexColor.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace plotsmith::xlsx {

std::string RgbText(std::int32_t color) {
  std::array<char, 7> text{};
  std::snprintf(text.data(), text.size(), "%02X%02X%02X", static_cast<unsigned>(color & 0xFF),
                static_cast<unsigned>(color >> 8 & 0xFF), static_cast<unsigned>(color >> 16 & 0xFF));
  return text.data();
}

std::optional<std::int32_t> ParseRgb(std::string_view text) {
  if (text.size() == 8) text.remove_prefix(2);
  std::uint32_t rgb = 0;
  const auto [end, status] = std::from_chars(text.begin(), text.end(), rgb, 16);
  if (text.size() != 6 || status != std::errc() || end != text.end()) return std::nullopt;
  return static_cast<std::int32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

}  // namespace plotsmith::xlsx
