#include "xlsx/DrawingFill.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "xlsx/ChartSchema.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::array<std::string_view, 6> kFills = {"noFill",   "solidFill", "gradFill",
                                                    "blipFill", "pattFill",  "grpFill"};

}  // namespace

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

pugi::xml_node FindFill(pugi::xml_node properties) {
  for (const std::string_view fill : kFills) {
    if (const auto node = schema::Find(properties, fill)) return node;
  }
  return {};
}

void RemoveFill(pugi::xml_node properties) {
  for (const std::string_view fill : kFills) schema::Remove(properties, fill);
}

pugi::xml_node SetFill(pugi::xml_node properties, std::string_view kind) {
  RemoveFill(properties);
  return schema::Ensure(properties, kind);
}

void SetFillColor(pugi::xml_node fill, std::int32_t color) {
  fill.remove_children();
  schema::SetVal(fill, "srgbClr", RgbText(color));
}

}  // namespace plotsmith::xlsx
