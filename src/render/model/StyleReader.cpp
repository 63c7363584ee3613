#include "render/model/StyleReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "render/Images.h"
#include "render/model/EffectReader.h"
#include "render/model/PictureSource.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/AutomaticColors.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/ShapeXml.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

constexpr double kUnitsPerDegree = 60000;
constexpr double kHairline = 0.75;    // points; of a line without a width
constexpr double kWidestLine = 1584;  // points; the limit of the file format

/// Reads a percentage of DrawingML, which is in thousandths of a percent or a text such as "65%", as a
/// fraction.
double FractionOf(pugi::xml_node node, const char* name, double fallback) {
  const std::string text = xml::Attribute(node, name);
  if (text.ends_with('%')) return xml::ParseDouble(text.substr(0, text.size() - 1)).value_or(0) / 100;
  const auto thousandths = xml::ParseDouble(text);
  return thousandths ? *thousandths / 100000 : fallback;
}

/// Returns the opacity of a colour, from 0 to 1.
double AlphaOf(pugi::xml_node holder) {
  double alpha = 1;
  for (const pugi::xml_node& color : holder.children()) {
    for (const pugi::xml_node& change : color.children()) {
      if (xml::Is(change, "alpha")) alpha = FractionOf(change, "val", 1);
      if (xml::Is(change, "alphaMod")) alpha *= FractionOf(change, "val", 1);
      if (xml::Is(change, "alphaOff")) alpha += FractionOf(change, "val", 0);
    }
  }
  return std::isfinite(alpha) ? std::clamp(alpha, 0.0, 1.0) : 1;
}

struct DashStyle {
  std::string_view name;
  std::array<double, 6> lengths;  ///< in line widths; 0 ends the list
};
constexpr std::array<DashStyle, 10> kDashes = {{{"dash", {4, 3}},
                                                {"dashDot", {4, 3, 1, 3}},
                                                {"dot", {1, 3}},
                                                {"lgDash", {8, 3}},
                                                {"lgDashDot", {8, 3, 1, 3}},
                                                {"lgDashDotDot", {8, 3, 1, 3, 1, 3}},
                                                {"sysDash", {3, 1}},
                                                {"sysDashDot", {3, 1, 1, 1}},
                                                {"sysDashDotDot", {3, 1, 1, 1, 1, 1}},
                                                {"sysDot", {1, 1}}}};

std::vector<double> DashesOf(std::string_view name, double width) {
  std::vector<double> lengths;
  for (const DashStyle& style : kDashes) {
    if (style.name != name) continue;
    for (const double length : style.lengths) {
      if (length > 0) lengths.push_back(length * std::max(width, kHairline));
    }
  }
  return lengths;
}

/// Reads a picture that is stretched or repeated. A pixel of a tile is 1/96 inch, multiplied by the scale of
/// the tile.
Fill ReadPicture(const Palette& palette, pugi::xml_node fill, const Fill& automatic) {
  std::string bytes = palette.Picture(fill);
  const auto size = SizeOfImage(bytes);
  if (!size) return automatic;
  PictureFill picture{std::make_shared<const std::string>(std::move(bytes))};
  if (const auto tile = xml::Child(fill, "tile")) {
    constexpr double kPixel = 0.75;  // points
    picture.tileWidth = size->width * kPixel * std::abs(FractionOf(tile, "sx", 1));
    picture.tileHeight = size->height * kPixel * std::abs(FractionOf(tile, "sy", 1));
  }
  return picture;
}

Fill ReadGradient(const Palette& palette, pugi::xml_node fill, const Fill& automatic) {
  GradientFill gradient;
  for (const pugi::xml_node& stop : xml::Children(xml::Child(fill, "gsLst"), "gs")) {
    if (const auto color = ReadColor(palette, stop)) {
      gradient.stops.push_back({std::clamp(FractionOf(stop, "pos", 0), 0.0, 1.0), *color});
    }
  }
  if (gradient.stops.empty()) return automatic;
  std::stable_sort(gradient.stops.begin(), gradient.stops.end(),
                   [](const GradientStop& a, const GradientStop& b) { return a.position < b.position; });
  gradient.angle = xml::NumberAttribute(xml::Child(fill, "lin"), "ang", 0) / kUnitsPerDegree;
  if (const auto path = xml::Child(fill, "path")) {
    const auto focus = xml::Child(path, "fillToRect");
    gradient.radial = true;
    gradient.focus = {(FractionOf(focus, "l", 0) + 1 - FractionOf(focus, "r", 0)) / 2,
                      (FractionOf(focus, "t", 0) + 1 - FractionOf(focus, "b", 0)) / 2};
  }
  return gradient;
}

Font FontOf(const xlsx::TextLook& look) {
  constexpr double kLeast = 1, kMost = 400;  // points; the limits of font sizes in a file
  return {look.typeface, std::isfinite(look.points) ? std::clamp(look.points, kLeast, kMost) : 10, look.bold,
          look.italic, look.underline};
}

/// Reads the rotation of a text (a:bodyPr).
void ReadRotation(pugi::xml_node body, std::optional<double>& rotation, bool& stacked) {
  const auto properties = xml::Child(body, "bodyPr");
  if (const auto units = xml::ParseDouble(xml::Attribute(properties, "rot"))) {
    const double degrees = *units / kUnitsPerDegree;
    // Files contain -1000 degrees for a rotation that Excel chooses.
    if (std::abs(degrees) <= 360) rotation = degrees;
  }
  const std::string direction = xml::Attribute(properties, "vert", "horz");
  if (direction == "vert") rotation = 90;
  if (direction == "vert270") rotation = -90;
  stacked = direction.starts_with("wordArtVert");
}

}  // namespace

std::optional<std::int32_t> Palette::Color(pugi::xml_node holder) const {
  return part_ != nullptr ? part_->Color(holder) : theme_->Color(holder);
}

std::string Palette::Picture(pugi::xml_node fill) const {
  // Pictures of shapes on a chart belong to another part.
  if (part_ == nullptr || fill.root() != part_->Space().root()) return {};
  for (const pugi::xml_attribute& link : xml::Child(fill, "blip").attributes()) {
    if (xml::LocalName(link.name()) == "embed") return ImagesOf(part_->Book(), part_->Part())(link.value());
  }
  return {};
}

const xlsx::Theme& Palette::Theme() const { return part_ != nullptr ? part_->Theme() : *theme_; }

std::optional<Color> ReadColor(const Palette& palette, pugi::xml_node holder) {
  const auto color = palette.Color(holder);
  if (!color) return std::nullopt;
  return FromExcel(*color, AlphaOf(holder));
}

Fill ReadFill(const Palette& palette, pugi::xml_node fill, const Fill& automatic) {
  const std::string_view kind = xml::LocalName(fill);
  if (kind == "noFill") return {};
  if (kind == "solidFill") {
    const auto color = ReadColor(palette, fill);
    return color ? Fill(SolidFill{*color}) : automatic;
  }
  if (kind == "blipFill") return ReadPicture(palette, fill, automatic);
  if (kind == "gradFill") return ReadGradient(palette, fill, automatic);
  if (kind == "pattFill") {
    const auto foreground = ReadColor(palette, xml::Child(fill, "fgClr"));
    const auto background = ReadColor(palette, xml::Child(fill, "bgClr"));
    return PatternFill{xml::Attribute(fill, "prst", "pct50"), foreground.value_or(Color{0, 0, 0, 1}),
                       background.value_or(Color{255, 255, 255, 1})};
  }
  return automatic;
}

Stroke ReadStroke(const Palette& palette, pugi::xml_node line, const Stroke& automatic) {
  Stroke stroke = automatic;
  if (!line) return stroke;
  const Fill fill = ReadFill(palette, xlsx::FindFill(line), Fill());
  if (const auto* solid = std::get_if<SolidFill>(&fill)) {
    stroke.color = solid->color;
    if (!(stroke.width > 0)) stroke.width = kHairline;
  } else if (const auto* gradient = std::get_if<GradientFill>(&fill)) {
    stroke.color = gradient->stops.front().color;
    if (!(stroke.width > 0)) stroke.width = kHairline;
  } else if (const auto* pattern = std::get_if<PatternFill>(&fill)) {
    stroke.color = pattern->foreground;
    if (!(stroke.width > 0)) stroke.width = kHairline;
  } else if (xlsx::FindFill(line)) {
    return {};
  }
  if (stroke.width > 0) {
    // A width of zero means the thinnest line.
    const double width = xlsx::PointsOf(line, "w", stroke.width);
    stroke.width = std::isfinite(width) ? std::clamp(width, 0.25, kWidestLine) : kHairline;
    if (width == 0) stroke.width = kHairline;
  }
  const std::string cap = xml::Attribute(line, "cap");
  if (cap == "rnd") stroke.cap = LineCap::kRound;
  if (cap == "sq") stroke.cap = LineCap::kSquare;
  if (xml::Child(line, "miter")) stroke.join = LineJoin::kMiter;
  if (xml::Child(line, "bevel")) stroke.join = LineJoin::kBevel;
  const std::string dash = schema::Val(line, "prstDash");
  if (!dash.empty()) stroke.dashes = DashesOf(dash, stroke.width);
  return stroke;
}

ShapeStyle ReadStyle(const Palette& palette, pugi::xml_node properties, const ShapeStyle& automatic) {
  return {ReadFill(palette, xlsx::FindFill(properties), automatic.fill),
          ReadStroke(palette, xml::Child(properties, "ln"), automatic.stroke),
          ReadShadow(palette, properties, automatic.shadow)};
}

TextStyle ReadTextStyle(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role) {
  const xlsx::TextLook look = xlsx::LooksOf(part, element, role).front();
  TextStyle style{FontOf(look), FromExcel(look.color), std::nullopt, false};
  ReadRotation(xml::Child(element, "txPr"), style.rotation, style.stacked);
  return style;
}

RichText ReadText(xlsx::ChartPart& part, pugi::xml_node element, xlsx::TextRole role,
                  const std::string& automatic) {
  RichText text;
  const auto rich = xml::Child(element, "tx", "rich");
  const auto looks = xlsx::LooksOf(part, element, role);
  ReadRotation(rich ? rich : xml::Child(element, "txPr"), text.rotation, text.stacked);
  if (!rich) {
    const auto tx = xml::Child(element, "tx");
    const TextStyle style{FontOf(looks.front()), FromExcel(looks.front().color), text.rotation, text.stacked};
    return Plain(tx ? xlsx::SourceText(part, tx) : automatic, style);
  }
  std::size_t next = 0;  // There are looks for the runs with a text, in their order.
  for (const pugi::xml_node& paragraph : xml::Children(rich, "p")) {
    text.paragraphs.emplace_back();
    const auto endLine = [&](pugi::xml_node properties) {
      auto& line = text.paragraphs.back();
      if (!line.empty()) return;
      const xlsx::TextLook look = xlsx::LookOfRun(part, element, paragraph, properties, role);
      line.push_back({"", FontOf(look), FromExcel(look.color)});
    };
    for (const pugi::xml_node& run : paragraph.children()) {
      if (xml::Is(run, "br")) {
        endLine(xml::Child(run, "rPr"));
        text.paragraphs.emplace_back();
      }
      if (!xml::Is(run, "r") && !xml::Is(run, "fld")) continue;
      const std::string words = xml::Text(xml::Child(run, "t"));
      if (words.empty()) continue;
      const xlsx::TextLook& look = looks[std::min(next++, looks.size() - 1)];
      text.paragraphs.back().push_back({words, FontOf(look), FromExcel(look.color)});
    }
    endLine(xml::Child(paragraph, "endParaRPr"));
  }
  return text;
}

std::optional<ManualLayout> ReadLayout(pugi::xml_node element) {
  const auto node = xml::Child(element, "layout", "manualLayout");
  if (!node) return std::nullopt;
  const auto number = [&](const char* name) -> std::optional<double> {
    constexpr double kMost = 10;  // in widths or heights of the chart; larger numbers are errors
    const auto value = schema::NumberVal(node, name);
    return value && std::abs(*value) <= kMost ? value : std::nullopt;
  };
  const auto isEdge = [&](const char* name) { return schema::Val(node, name, "factor") == "edge"; };
  return ManualLayout{.inner = schema::Val(node, "layoutTarget", "outer") == "inner",
                      .x = number("x"),
                      .y = number("y"),
                      .width = number("w"),
                      .height = number("h"),
                      .xIsEdge = isEdge("xMode"),
                      .yIsEdge = isEdge("yMode"),
                      .widthIsEdge = isEdge("wMode"),
                      .heightIsEdge = isEdge("hMode")};
}

namespace {

/// Returns the text colour of the theme, lightened as Excel lightens it for lines.
Color TintedText(xlsx::ChartPart& part, double tint) {
  const Color text = FromExcel(part.Theme().SchemeColor("tx1").value_or(0));
  const auto channel = [&](std::uint8_t value) {
    return static_cast<std::uint8_t>(std::lround(value + (255 - value) * tint));
  };
  return {channel(text.red), channel(text.green), channel(text.blue), 1};
}

constexpr double kLineTint = 134.0 / 255, kMinorTint = 183.0 / 255;

}  // namespace

ShapeStyle AutomaticStyles::ChartArea() const {
  return {SolidFill{FromExcel(xlsx::AutomaticChartArea(part_))},
          {TintedText(part_, kLineTint), kHairline, {}, LineCap::kFlat, LineJoin::kMiter}};
}

ShapeStyle AutomaticStyles::PlotArea(bool isFlat) const {
  if (!isFlat) return {};
  return {SolidFill{FromExcel(xlsx::AutomaticPlotArea(part_))}, {}};
}

Stroke AutomaticStyles::AxisLine() const { return {TintedText(part_, kLineTint), kHairline}; }

Stroke AutomaticStyles::MinorGridline() const { return {TintedText(part_, kMinorTint), kHairline}; }

Color AutomaticStyles::SeriesColor(std::size_t index, std::size_t count) const {
  return FromExcel(xlsx::AutomaticColor(part_, index, count));
}

}  // namespace plotsmith::render
