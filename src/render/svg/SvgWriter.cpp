#include "render/svg/SvgWriter.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

#include "render/FontSubstitutes.h"
#include "render/svg/SvgImage.h"
#include "render/svg/SvgPaint.h"
#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

/// Appends the commands and numbers of a path, with a space only between numbers that would run together.
class PathText {
 public:
  explicit PathText(std::string& text) : text_(text) {}
  void Command(char letter) {
    text_ += letter;
    afterNumber_ = false;
  }
  void Number(long long hundredths) {
    if (afterNumber_ && hundredths >= 0) text_ += ' ';
    AppendHundredths(text_, hundredths);
    afterNumber_ = true;
  }

 private:
  std::string& text_;
  bool afterNumber_ = false;
};

/// A point on a grid of hundredths of a point. Relative steps between such points don't add up rounding
/// errors.
struct GridPoint {
  long long x = 0, y = 0;
};
GridPoint OnGrid(Point point) { return {std::llround(point.x * 100), std::llround(point.y * 100)}; }

void AppendPathData(std::string& data, const Path& path) {
  PathText text(data);
  GridPoint at, start;
  for (const PathStep& step : path.Steps()) {
    const GridPoint to = OnGrid(step.to);
    const auto relative = [&](GridPoint point) {
      text.Number(point.x - at.x);
      text.Number(point.y - at.y);
    };
    switch (step.kind) {
      case PathStep::Kind::kMove:
        text.Command('M');
        text.Number(to.x);
        text.Number(to.y);
        start = to;
        break;
      case PathStep::Kind::kLine:
        if (to.y == at.y) {
          text.Command('h');
          text.Number(to.x - at.x);
        } else if (to.x == at.x) {
          text.Command('v');
          text.Number(to.y - at.y);
        } else {
          text.Command('l');
          relative(to);
        }
        break;
      case PathStep::Kind::kCurve:
        text.Command('c');
        relative(OnGrid(step.control1));
        relative(OnGrid(step.control2));
        relative(to);
        break;
      case PathStep::Kind::kClose:
        text.Command('z');
        at = start;
        continue;
    }
    at = to;
  }
}

std::string PathData(const Path& path) {
  std::string data;
  AppendPathData(data, path);
  return data;
}

void AppendNumberAttribute(std::string& text, std::string_view name, double value) {
  text += ' ';
  text += name;
  text += "=\"";
  text += SvgNumber(value);
  text += '"';
}

/// Appends the attributes of an outline. `hasCorners` is true if the shape of its corners is visible.
void AppendStrokeAttributes(std::string& text, const Stroke& stroke, bool hasCorners) {
  if (!(stroke.width > 0)) return;
  text += " stroke=\"";
  text += HexOf(stroke.color);
  text += '"';
  if (stroke.color.alpha < 1) AppendNumberAttribute(text, "stroke-opacity", stroke.color.alpha);
  if (stroke.width != 1) AppendNumberAttribute(text, "stroke-width", stroke.width);
  if (!stroke.dashes.empty()) {
    text += " stroke-dasharray=\"";
    for (std::size_t i = 0; i < stroke.dashes.size(); ++i)
      text += (i ? " " : "") + SvgNumber(stroke.dashes[i]);
    text += '"';
  }
  if (stroke.cap != LineCap::kFlat) {
    text += stroke.cap == LineCap::kRound ? " stroke-linecap=\"round\"" : " stroke-linecap=\"square\"";
  }
  if (hasCorners && stroke.join != LineJoin::kMiter) {
    text += stroke.join == LineJoin::kRound ? " stroke-linejoin=\"round\"" : " stroke-linejoin=\"bevel\"";
  }
}

/// Returns a font family for CSS: the original font, its substitute, and the generic family.
std::string FontFamilies(const std::string& family) {
  const std::string_view substitute = SubstituteFor(family);
  std::string list;
  const auto add = [&](std::string_view name) {
    const std::string quoted = SvgEscape(name);
    list += quoted.find_first_of(" ,0123456789'") == std::string::npos
                ? quoted
                : "'" + runtime::Replace(quoted, "'", "") + "'";
    list += ',';
  };
  if (!family.empty()) add(family);
  if (!runtime::EqualsIgnoreCase(substitute, family)) add(substitute);
  return list + std::string(GenericFamilyOf(family));
}

std::string FontAttributes(const std::string& family, double size, const Font& usual) {
  std::string text;
  if (family != usual.family) text += " font-family=\"" + FontFamilies(family) + '"';
  if (size != usual.size) text += " font-size=\"" + SvgNumber(size) + '"';
  return text;
}

/// Returns the most frequent font family and size, which the root element sets for all texts. If there is no
/// text, they are empty and 0.
Font UsualFont(const Drawing& drawing) {
  std::map<std::pair<std::string, double>, int> counts;
  int most = 0;
  Font usual{"", 0};
  for (const Item& item : drawing.items) {
    const auto* text = std::get_if<TextItem>(&item.content);
    if (text == nullptr) continue;
    const int count = ++counts[{text->font.family, text->font.size}];
    if (count <= most) continue;
    most = count;
    usual = {text->font.family, text->font.size};
  }
  return usual;
}

/// Returns whether a text has white space that viewers drop unless an attribute preserves it.
bool LosesBlanks(std::string_view text) {
  return text.starts_with(' ') || text.ends_with(' ') || text.find("  ") != std::string_view::npos ||
         text.find_first_of("\t\n") != std::string_view::npos;
}

/// A placeholder for the prefix of ids while the file is written. No text contains it, because XML doesn't
/// allow it.
constexpr const char* kPrefixLeftOpen = "\x01";

/// Returns a prefix for ids. It is a hash of the whole file, so that the ids of different drawings differ.
std::string PrefixFor(std::string_view svg) {
  std::uint32_t hash = 2166136261;  // FNV-1a
  for (const char byte : svg) hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619;
  constexpr const char* kDigits = "0123456789abcdef";
  std::string prefix = "f";
  for (int shift = 28; shift >= 0; shift -= 4) prefix += kDigits[hash >> shift & 15];
  return prefix + '-';
}

class Writer {
 public:
  Writer(Font usual, const Drawing& drawing)
      : usual_(std::move(usual)), width_(drawing.width), height_(drawing.height) {}

  void operator()(const PathItem& item) {
    if (std::holds_alternative<std::monostate>(item.fill) && !(item.stroke.width > 0)) return;
    body_ += "<path d=\"";
    AppendPathData(body_, item.path);
    body_ += '"';
    body_ += FillAttributes(item.fill, item.path.Bounds(), definitions_);
    AppendStrokeAttributes(body_, item.stroke, item.path.Steps().size() > 2);
    body_ += "/>\n";
  }
  void operator()(const TextItem& item) {
    const Font& font = item.font;
    body_ += "<text";
    AppendNumberAttribute(body_, "x", item.anchor.x);
    AppendNumberAttribute(body_, "y", item.anchor.y);
    if (item.rotation != 0) {
      body_ += " transform=\"rotate(" + SvgNumber(item.rotation) + ' ' + SvgNumber(item.anchor.x) + ' ' +
               SvgNumber(item.anchor.y) + ")\"";
    }
    if (item.align != TextAlign::kStart) {
      body_ += item.align == TextAlign::kMiddle ? " text-anchor=\"middle\"" : " text-anchor=\"end\"";
    }
    body_ += FontAttributes(font.family, font.size, usual_);
    if (font.bold) body_ += " font-weight=\"bold\"";
    if (font.italic) body_ += " font-style=\"italic\"";
    if (font.underline) body_ += " text-decoration=\"underline\"";
    const Color black;
    if (item.color != black) body_ += FillAttributes(SolidFill{item.color}, {}, definitions_);
    if (LosesBlanks(item.text)) body_ += " xml:space=\"preserve\"";
    body_ += '>';
    body_ += SvgEscape(item.text);
    body_ += "</text>\n";
  }
  void operator()(const PushClip& clip) {
    const std::string id =
        definitions_.IdOf("<clipPath id=\"@\"><path d=\"" + PathData(clip.path) + "\"/></clipPath>");
    body_ += "<g clip-path=\"url(#" + id + ")\">\n";
    ++groups_;
  }
  void operator()(const PopClip&) {
    if (groups_ == 0) return;
    --groups_;
    body_ += "</g>\n";
  }
  void operator()(const ShadowItem& item) {
    const std::string color = HexOf(item.color);
    body_ += "<path d=\"" + PathData(item.path) + "\" fill=\"" + (item.filled ? color : "none") + '"';
    if (item.lineWidth > 0) {
      body_ += " stroke=\"" + color + "\" stroke-width=\"" + SvgNumber(item.lineWidth) + '"';
    }
    if (item.color.alpha < 1) body_ += " opacity=\"" + SvgNumber(item.color.alpha) + '"';
    if (item.blur > 0) {
      // The region of the filter is the drawing with the margin that the blur needs. The default region would
      // be empty for a line without a height.
      const double around = 3 * item.blur;
      const std::string id =
          definitions_.IdOf("<filter id=\"@\" filterUnits=\"userSpaceOnUse\" x=\"" + SvgNumber(-around) +
                            "\" y=\"" + SvgNumber(-around) + "\" width=\"" + SvgNumber(width_ + 2 * around) +
                            "\" height=\"" + SvgNumber(height_ + 2 * around) +
                            "\"><feGaussianBlur stdDeviation=\"" + SvgNumber(item.blur) + "\"/></filter>");
      body_ += " filter=\"url(#" + id + ")\"";
    }
    body_ += "/>\n";
  }
  void operator()(const ImageItem& item) { body_ += ImageElement(item); }

  std::string Finish() {
    for (; groups_ > 0; --groups_) body_ += "</g>\n";
    return definitions_.Text() + body_;
  }

 private:
  const Font usual_;
  const double width_, height_;  // the size of the drawing in points
  SvgDefinitions definitions_{kPrefixLeftOpen};
  std::string body_;
  int groups_ = 0;
};

}  // namespace

std::string MakeSvg(const Drawing& drawing) {
  const std::string width = SvgNumber(drawing.width), height = SvgNumber(drawing.height);
  const Font usual = UsualFont(drawing);
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "pt\" height=\"" + height +
                    "pt\" viewBox=\"0 0 " + width + ' ' + height + "\" role=\"img\"" +
                    FontAttributes(usual.family, usual.size, Font{"", 0}) + ">\n";
  if (!drawing.title.empty()) svg += "<title>" + SvgEscape(drawing.title) + "</title>\n";
  if (!drawing.description.empty()) svg += "<desc>" + SvgEscape(drawing.description) + "</desc>\n";
  Writer writer(usual, drawing);
  for (const Item& item : drawing.items) std::visit(writer, item.content);
  svg += writer.Finish() + "</svg>\n";
  if (svg.find(kPrefixLeftOpen) == std::string::npos) return svg;
  return runtime::Replace(svg, kPrefixLeftOpen, PrefixFor(svg));
}

}  // namespace plotsmith::render
