#include "render/svg/SvgPaint.h"

#include <cmath>

#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

/// "#F00" for "#FF0000".
std::string ShortHex(const Color& color) {
  std::string hex = HexOf(color);
  if (hex[1] == hex[2] && hex[3] == hex[4] && hex[5] == hex[6]) hex = {hex[0], hex[1], hex[3], hex[5]};
  return hex;
}

std::string ColorAttributes(const Color& color) {
  std::string text = " fill=\"" + ShortHex(color) + '"';
  if (color.alpha < 1) text += " fill-opacity=\"" + SvgNumber(color.alpha) + '"';
  return text;
}

}  // namespace

std::string SvgNumber(double value) {
  if (!std::isfinite(value)) return "0";
  long long hundredths = std::llround(std::min(std::max(value, -1e9), 1e9) * 100);
  if (hundredths == 0) return "0";
  std::string text;
  if (hundredths < 0) text += '-';
  hundredths = std::abs(hundredths);
  if (hundredths >= 100) text += std::to_string(hundredths / 100);
  if (const long long rest = hundredths % 100; rest != 0) {
    text += '.';
    text += static_cast<char>('0' + rest / 10);
    if (rest % 10 != 0) text += static_cast<char>('0' + rest % 10);
  }
  return text;
}

std::string SvgEscape(std::string_view text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = runtime::NextCharacter(text, at);
    const bool isText = character >= 0x20 || character == '\n' || character == '\t';
    const bool isHalf = character >= 0xD800 && character <= 0xDFFF;
    if (!isText || isHalf || character == 0xFFFE || character == 0xFFFF) continue;
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        runtime::AppendUtf8(escaped, character);
    }
  }
  return escaped;
}

std::string SvgDefinitions::IdOf(const std::string& element) {
  const auto found = ids_.find(element);
  if (found != ids_.end()) return found->second;
  const std::string id = "f" + std::to_string(ids_.size() + 1);
  std::string text = element;
  if (const auto at = text.find('@'); at != std::string::npos) text.replace(at, 1, id);
  text_ += text;
  ids_.emplace(element, id);
  return id;
}

std::string SvgDefinitions::Text() const { return text_.empty() ? "" : "<defs>" + text_ + "</defs>\n"; }

std::string FillAttributes(const Fill& fill, const Rect& bounds, SvgDefinitions& definitions) {
  static_cast<void>(bounds);
  static_cast<void>(definitions);
  if (const auto* solid = std::get_if<SolidFill>(&fill)) return ColorAttributes(solid->color);
  if (const auto* pattern = std::get_if<PatternFill>(&fill)) return ColorAttributes(pattern->background);
  const auto* gradient = std::get_if<GradientFill>(&fill);
  if (gradient != nullptr && !gradient->stops.empty()) return ColorAttributes(gradient->stops.front().color);
  return " fill=\"none\"";
}

}  // namespace plotsmith::render
