#include "render/shapes/ShapeText.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "render/text/TextBlock.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/ShapeXml.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

namespace xml = xlsx::xml;

constexpr double kUsualSize = 11;  // points; of a text without a size

/// The properties of a run. Those of the run itself take precedence over those of the body.
class RunProperties {
 public:
  RunProperties(pugi::xml_node own, pugi::xml_node body)
      : chain_{own, xml::Child(body, "lstStyle", "lvl1pPr", "defRPr")} {}

  std::string Attribute(const char* name) const {
    for (const pugi::xml_node& properties : chain_) {
      if (const auto value = xml::FindAttribute(properties, name)) return *value;
    }
    return {};
  }
  pugi::xml_node Child(std::string_view local) const {
    for (const pugi::xml_node& properties : chain_) {
      if (const auto child = xml::Child(properties, local)) return child;
    }
    return {};
  }
  pugi::xml_node Fill() const {
    for (const pugi::xml_node& properties : chain_) {
      if (const auto fill = xlsx::FindFill(properties)) return fill;
    }
    return {};
  }

 private:
  pugi::xml_node chain_[2];
};

class BodyReader {
 public:
  BodyReader(const Palette& palette, pugi::xml_node body, const Color& automatic)
      : palette_(palette), body_(body), automatic_(automatic) {
    const auto scale = xml::Child(body, "bodyPr", "normAutofit");
    const double percent = xml::NumberAttribute(scale, "fontScale", 100000) / 100000;
    if (percent > 0.05 && percent < 4) scale_ = percent;
  }

  ShapeText Read() const {
    ShapeText text;
    ReadBox(text);
    for (const pugi::xml_node& paragraph : xml::Children(body_, "p")) {
      text.paragraphs.push_back(ReadParagraph(paragraph));
    }
    return text;
  }

 private:
  void ReadBox(ShapeText& text) const {
    const auto properties = xml::Child(body_, "bodyPr");
    text.left = Inset(properties, "lIns", text.left);
    text.right = Inset(properties, "rIns", text.right);
    text.top = Inset(properties, "tIns", text.top);
    text.bottom = Inset(properties, "bIns", text.bottom);
    const std::string anchor = xml::Attribute(properties, "anchor", "t");
    if (anchor == "ctr") text.anchor = ShapeText::Anchor::kMiddle;
    if (anchor == "b") text.anchor = ShapeText::Anchor::kBottom;
    text.wraps = xml::Attribute(properties, "wrap", "square") != "none";
    constexpr double kUnitsPerDegree = 60000;
    const double turn = xml::NumberAttribute(properties, "rot", 0) / kUnitsPerDegree;
    if (std::abs(turn) <= 360) text.rotation = turn;
    const std::string direction = xml::Attribute(properties, "vert", "horz");
    if (direction == "vert" || direction == "eaVert") text.rotation += 90;
    if (direction == "vert270") text.rotation -= 90;
  }
  static double Inset(pugi::xml_node properties, const char* name, double fallback) {
    const double points = xlsx::PointsOf(properties, name, fallback);
    return std::isfinite(points) ? points : fallback;
  }

  ShapeParagraph ReadParagraph(pugi::xml_node paragraph) const {
    ShapeParagraph read;
    std::string align = xml::Attribute(xml::Child(paragraph, "pPr"), "algn");
    if (align.empty()) align = xml::Attribute(xml::Child(body_, "lstStyle", "lvl1pPr"), "algn", "l");
    if (align == "ctr" || align == "dist") read.align = TextAlign::kMiddle;
    if (align == "r") read.align = TextAlign::kEnd;
    read.text.paragraphs.emplace_back();
    for (const pugi::xml_node& run : paragraph.children()) {
      if (xml::Is(run, "br")) read.text.paragraphs.emplace_back();
      if (!xml::Is(run, "r") && !xml::Is(run, "fld")) continue;
      TextRun text = RunOf(xml::Child(run, "rPr"));
      text.text = xml::Text(xml::Child(run, "t"));
      if (!text.text.empty()) read.text.paragraphs.back().push_back(std::move(text));
    }
    // An empty line is as high as its font.
    for (auto& line : read.text.paragraphs) {
      if (line.empty()) line.push_back(RunOf(xml::Child(paragraph, "endParaRPr")));
    }
    return read;
  }

  TextRun RunOf(pugi::xml_node own) const {
    const RunProperties properties(own, body_);
    TextRun run;
    const std::string typeface = xml::Attribute(properties.Child("latin"), "typeface", "+mn-lt");
    run.font.family = palette_.Theme().Typeface(typeface);
    const double size = xml::ParseDouble(properties.Attribute("sz")).value_or(kUsualSize * 100) / 100;
    constexpr double kLeast = 1, kMost = 400;  // points; the limits of font sizes in a file
    run.font.size = (std::isfinite(size) ? std::clamp(size, kLeast, kMost) : kUsualSize) * scale_;
    run.font.bold = xml::ParseBoolean(properties.Attribute("b")).value_or(false);
    run.font.italic = xml::ParseBoolean(properties.Attribute("i")).value_or(false);
    const std::string underline = properties.Attribute("u");
    run.font.underline = !underline.empty() && underline != "none";
    run.color = ReadColor(palette_, properties.Fill()).value_or(automatic_);
    return run;
  }

  const Palette& palette_;
  pugi::xml_node body_;
  Color automatic_;
  double scale_ = 1;  ///< the scale of the fonts in a text that Excel shrank to fit
};

/// A paragraph with its lines broken.
struct PlacedParagraph {
  TextBlock block;
  TextAlign align;
};

double StartOf(const ShapeText& text, const Rect& room, double height) {
  switch (text.anchor) {
    case ShapeText::Anchor::kTop:
      break;
    case ShapeText::Anchor::kMiddle:
      return room.Center().y - height / 2;
    case ShapeText::Anchor::kBottom:
      return room.Bottom() - height;
  }
  return room.top;
}

double MiddleOf(const PlacedParagraph& paragraph, const Rect& room) {
  switch (paragraph.align) {
    case TextAlign::kStart:
      return room.left + paragraph.block.width / 2;
    case TextAlign::kEnd:
      return room.Right() - paragraph.block.width / 2;
    case TextAlign::kMiddle:
      break;
  }
  return room.Center().x;
}

}  // namespace

bool ShapeText::IsEmpty() const {
  return std::all_of(paragraphs.begin(), paragraphs.end(),
                     [](const ShapeParagraph& paragraph) { return paragraph.text.IsEmpty(); });
}

ShapeText ReadShapeText(const Palette& palette, pugi::xml_node object, const Color& automatic) {
  return BodyReader(palette, xml::Child(object, "txBody"), automatic).Read();
}

void DrawShapeText(Canvas& canvas, Tag tag, const ShapeText& text, const Rect& frame,
                   const Placement& placement) {
  if (text.IsEmpty()) return;
  const Placement turned = placement.Turned(frame.Center(), text.rotation);
  Rect box = frame;
  if (std::abs(std::abs(text.rotation) - 90) < 1) {
    // The lines of a text that is rotated by a right angle are parallel to the other edge.
    const Point center = frame.Center();
    box = {center.x - frame.height / 2, center.y - frame.width / 2, frame.height, frame.width};
  }
  const Rect room{box.left + text.left, box.top + text.top, std::max(box.width - text.left - text.right, 1.0),
                  std::max(box.height - text.top - text.bottom, 0.0)};
  std::vector<PlacedParagraph> placed;
  double height = 0;
  for (const ShapeParagraph& paragraph : text.paragraphs) {
    placed.push_back(
        {LayOut(paragraph.text, canvas.Measure(), text.wraps ? room.width : kUnlimited), paragraph.align});
    height += placed.back().block.height;
  }
  double y = StartOf(text, room, height);
  for (PlacedParagraph& paragraph : placed) {
    const Point center{MiddleOf(paragraph, room), y + paragraph.block.height / 2};
    y += paragraph.block.height;
    paragraph.block.rotation = turned.Rotation();
    DrawBlock(canvas, tag, paragraph.block, turned.Map(center), paragraph.align);
  }
}

}  // namespace plotsmith::render
