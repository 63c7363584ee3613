#include "render/svg/SvgPaint.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "render/fills/GradientGeometry.h"
#include "render/fills/Patterns.h"
#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

/// Returns a colour as "#RRGGBB", or in its short form: "#F00" for "#FF0000".
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
  std::string text;
  AppendHundredths(text, std::llround(std::min(std::max(value, -1e9), 1e9) * 100));
  return text;
}

void AppendHundredths(std::string& text, long long hundredths) {
  constexpr long long kMost = 100'000'000'000;
  hundredths = std::clamp(hundredths, -kMost, kMost);
  const long long size = std::abs(hundredths), rest = size % 100;
  std::array<char, 20> characters;
  char* end = characters.begin();
  if (hundredths < 0) *end++ = '-';
  if (size >= 100 || size == 0) end = std::to_chars(end, characters.end(), size / 100).ptr;
  if (rest != 0) {
    *end++ = '.';
    *end++ = static_cast<char>('0' + rest / 10);
    if (rest % 10 != 0) *end++ = static_cast<char>('0' + rest % 10);
  }
  text.append(characters.data(), static_cast<std::size_t>(end - characters.data()));
}

std::string SvgEscape(std::string_view text) {
  const auto isPlain = [](char c) {
    return (c >= 0x20 && c < 0x7F && c != '&' && c != '<' && c != '>' && c != '"') || c == '\n';
  };
  std::string escaped;
  escaped.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t from = at;
    while (at < text.size() && isPlain(text[at])) ++at;
    escaped.append(text, from, at - from);
    if (at == text.size()) break;
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
        if (character < 0x80) {
          escaped += static_cast<char>(character);
        } else {
          runtime::AppendUtf8(escaped, character);
        }
    }
  }
  return escaped;
}

std::string SvgDefinitions::IdOf(const std::string& element) {
  const auto found = ids_.find(element);
  if (found != ids_.end()) return found->second;
  const std::string id = prefix_ + std::to_string(ids_.size() + 1);
  std::string text = element;
  if (const auto at = text.find('@'); at != std::string::npos) text.replace(at, 1, id);
  text_ += text;
  ids_.emplace(element, id);
  return id;
}

std::string SvgDefinitions::Text() const { return text_.empty() ? "" : "<defs>" + text_ + "</defs>\n"; }

namespace {

std::string StopsOf(const GradientFill& gradient) {
  std::string stops;
  for (const GradientStop& stop : gradient.stops) {
    stops += "<stop offset=\"" + SvgNumber(stop.position) + "\" stop-color=\"" + ShortHex(stop.color) + '"';
    if (stop.color.alpha < 1) stops += " stop-opacity=\"" + SvgNumber(stop.color.alpha) + '"';
    stops += "/>";
  }
  return stops;
}

std::string LineAttributes(const GradientLine& line) {
  return " x1=\"" + SvgNumber(line.from.x) + "\" y1=\"" + SvgNumber(line.from.y) + "\" x2=\"" +
         SvgNumber(line.to.x) + "\" y2=\"" + SvgNumber(line.to.y) + '"';
}

std::string GradientElement(const GradientFill& gradient, const Rect& bounds) {
  if (gradient.radial) {
    return "<radialGradient id=\"@\" cx=\"" + SvgNumber(gradient.focus.x) + "\" cy=\"" +
           SvgNumber(gradient.focus.y) + "\" r=\"" + SvgNumber(UnitRadiusOf(gradient)) + "\">" +
           StopsOf(gradient) + "</radialGradient>";
  }
  // A gradient along an edge can be given in fractions of the bounds, so all shapes with this fill share one
  // element. Other angles would change with the proportions of the bounds.
  const bool shared = std::fmod(gradient.angle, 90) == 0;
  const GradientLine line = LineOf(gradient, shared ? Rect{0, 0, 1, 1} : bounds);
  return "<linearGradient id=\"@\"" + LineAttributes(line) +
         (shared ? "" : " gradientUnits=\"userSpaceOnUse\"") + ">" + StopsOf(gradient) + "</linearGradient>";
}

/// Returns the set pixels of a tile as a path. Neighbouring pixels in a row are one rectangle.
std::string PixelsOf(const PatternTile& tile) {
  std::string path;
  for (int y = 0; y < kPatternSize; ++y) {
    const auto isSet = [&](int x) {
      return x < kPatternSize && (tile[static_cast<std::size_t>(y)] >> (kPatternSize - 1 - x) & 1) != 0;
    };
    for (int x = 0; x < kPatternSize; ++x) {
      if (!isSet(x)) continue;
      const int from = x;
      while (isSet(x)) ++x;
      const std::string width = std::to_string(x - from);
      path += "M" + std::to_string(from) + " " + std::to_string(y) + "h" + width + "v1h-" + width + "z";
    }
  }
  return path;
}

std::string PatternElement(const PatternFill& fill, const PatternTile& tile) {
  const std::string size = std::to_string(kPatternSize), edge = SvgNumber(kPatternSize * kPatternPixel);
  std::string element = "<pattern id=\"@\" width=\"" + edge + "\" height=\"" + edge +
                        "\" patternUnits=\"userSpaceOnUse\" viewBox=\"0 0 " + size + ' ' + size +
                        "\" shape-rendering=\"crispEdges\">";
  element +=
      "<path d=\"M0 0h" + size + "v" + size + "h-" + size + "z\"" + ColorAttributes(fill.background) + "/>";
  element += "<path d=\"" + PixelsOf(tile) + '"' + ColorAttributes(fill.foreground) + "/></pattern>";
  return element;
}

}  // namespace

std::string FillAttributes(const Fill& fill, const Rect& bounds, SvgDefinitions& definitions) {
  if (const auto* solid = std::get_if<SolidFill>(&fill)) return ColorAttributes(solid->color);
  if (const auto* pattern = std::get_if<PatternFill>(&fill)) {
    const PatternTile* tile = FindPattern(pattern->preset);
    if (tile == nullptr) return ColorAttributes(pattern->background);
    return " fill=\"url(#" + definitions.IdOf(PatternElement(*pattern, *tile)) + ")\"";
  }
  const auto* gradient = std::get_if<GradientFill>(&fill);
  if (gradient == nullptr || gradient->stops.empty()) return " fill=\"none\"";
  // A shape without an extent shows nothing of a gradient.
  if (!(bounds.width > 0 && bounds.height > 0)) return ColorAttributes(gradient->stops.front().color);
  return " fill=\"url(#" + definitions.IdOf(GradientElement(*gradient, bounds)) + ")\"";
}

}  // namespace plotsmith::render
