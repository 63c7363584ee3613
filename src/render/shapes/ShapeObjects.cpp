#include "render/shapes/ShapeObjects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "render/Images.h"
#include "render/model/EffectReader.h"
#include "render/model/StyledShape.h"
#include "render/shapes/Placement.h"
#include "render/shapes/ShapeForms.h"
#include "render/shapes/ShapeText.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/ShapeXml.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

namespace xml = xlsx::xml;

constexpr int kDeepest = 16;  // the maximum number of nested groups

/// The frame of a shape (a:xfrm), and the rectangle of this frame in the coordinates of a group's members.
struct Transform {
  Rect frame, members;
  double rotation = 0;
  Flip flip;
};

Rect RectOf(pugi::xml_node transform, const char* place, const char* extent) {
  const auto at = xml::Child(transform, place), size = xml::Child(transform, extent);
  return {xlsx::PointsOf(at, "x"), xlsx::PointsOf(at, "y"), xlsx::PointsOf(size, "cx"),
          xlsx::PointsOf(size, "cy")};
}

Transform ReadTransform(pugi::xml_node object) {
  constexpr double kUnitsPerDegree = 60000;
  const auto node = xml::Child(xlsx::ShapePropertiesOf(object), "xfrm");
  Transform transform;
  transform.frame = RectOf(node, "off", "ext");
  transform.members = RectOf(node, "chOff", "chExt");
  const double turn = xml::NumberAttribute(node, "rot", 0) / kUnitsPerDegree;
  if (std::isfinite(turn)) transform.rotation = std::fmod(turn, 360);
  transform.flip.horizontal = xml::BooleanAttribute(node, "flipH", false);
  transform.flip.vertical = xml::BooleanAttribute(node, "flipV", false);
  return transform;
}

/// The look that a shape gets from its style, which refers to the theme.
struct StyleOfShape {
  ShapeStyle shape;
  Color text;
};

StyleOfShape ReadStyleOfShape(const Palette& palette, pugi::xml_node object) {
  StyleOfShape automatic;
  automatic.text = FromExcel(palette.Theme().SchemeColor("tx1").value_or(0));
  const auto style = xml::Child(object, "style");
  const auto reference = [&](const char* name) { return xml::Child(style, name); };
  const auto indexOf = [](pugi::xml_node node) { return xml::IntegerAttribute(node, "idx", 0); };
  if (const auto fill = reference("fillRef"); indexOf(fill) > 0) {
    if (const auto color = ReadColor(palette, fill)) automatic.shape.fill = SolidFill{*color};
  }
  if (const auto line = reference("lnRef"); indexOf(line) > 0) {
    // The widths of the lines of Office's themes, in points.
    constexpr std::array kWidths = {0.75, 2.0, 3.0};
    const auto color = ReadColor(palette, line);
    const auto index = static_cast<std::size_t>(std::min<long long>(indexOf(line), kWidths.size()) - 1);
    if (color) automatic.shape.stroke = {*color, kWidths[index]};
  }
  if (const auto color = ReadColor(palette, reference("fontRef"))) automatic.text = *color;
  return automatic;
}

class ObjectPainter {
 public:
  ObjectPainter(Canvas& canvas, const Palette& palette, int number, const ImageSource& images)
      : canvas_(canvas), palette_(palette), number_(number), images_(images) {}

  void Paint(pugi::xml_node object, const Rect& frame, const Placement& outer, const Fill& ofGroup,
             int depth) {
    if (xml::BooleanAttribute(xlsx::IdentityOf(object), "hidden", false)) return;
    const Transform transform = ReadTransform(object);
    const Placement placement = outer.Turned(frame.Center(), transform.rotation, transform.flip);
    if (xml::Is(object, "grpSp")) {
      if (depth < kDeepest) PaintGroup(object, frame, transform, placement, ofGroup, depth);
    } else if (xml::Is(object, "sp") || xml::Is(object, "cxnSp")) {
      PaintShape(object, frame, placement, ofGroup);
    } else if (xml::Is(object, "pic")) {
      PaintPicture(object, frame, transform, placement);
    }
  }

 private:
  static std::string NameOf(pugi::xml_node object) {
    return xml::Attribute(xlsx::IdentityOf(object), "name");
  }

  void PaintGroup(pugi::xml_node group, const Rect& frame, const Transform& transform,
                  const Placement& placement, const Fill& ofGroup, int depth) {
    const Fill fill = ReadFill(palette_, xlsx::FindFill(xlsx::ShapePropertiesOf(group)), ofGroup);
    const Rect& members = transform.members;
    // If the group has no extent, the members keep their sizes.
    const double across = members.width > 0 ? frame.width / members.width : 1;
    const double down = members.height > 0 ? frame.height / members.height : 1;
    for (const pugi::xml_node& member : group.children()) {
      const Rect own = ReadTransform(member).frame;
      const Rect placed{frame.left + (own.left - members.left) * across,
                        frame.top + (own.top - members.top) * down, own.width * across, own.height * down};
      Paint(member, placed, placement, fill, depth + 1);
    }
  }

  void PaintShape(pugi::xml_node object, const Rect& frame, const Placement& placement, const Fill& ofGroup) {
    const auto properties = xlsx::ShapePropertiesOf(object);
    const StyleOfShape automatic = ReadStyleOfShape(palette_, object);
    ShapeStyle style = ReadStyle(palette_, properties, automatic.shape);
    if (xml::Is(xlsx::FindFill(properties), "grpFill")) style.fill = ofGroup;
    const auto geometry = xml::Child(properties, "prstGeom");
    auto form = FormOf(geometry, frame);
    if (!form) {
      const std::string name = xml::Attribute(geometry, "prst", "a form of its own");
      canvas_.Note("A shape is drawn as a rectangle because its form isn't known: " + NameOf(object) + " (" +
                   name + ").");
      form = ShapeForm{Path().AddRect(frame), false};
    }
    for (std::string& sentence : MissingEffects(FindRareLooks(object))) canvas_.Note(std::move(sentence));
    if (form->open) style.fill = {};
    AddShape(canvas_, {Role::kShape, 0, number_}, placement.Map(form->path), style);
    DrawShapeText(canvas_, {Role::kShapeText, 0, number_}, ReadShapeText(palette_, object, automatic.text),
                  frame, placement);
  }

  void PaintPicture(pugi::xml_node object, const Rect& frame, const Transform& transform,
                    const Placement& placement) {
    const auto fill = xml::Child(object, "blipFill");
    std::string bytes;
    for (const pugi::xml_attribute& link : xml::Child(fill, "blip").attributes()) {
      if (images_ && xml::LocalName(link.name()) == "embed") bytes = images_(link.value());
    }
    const bool turned = placement.Rotation() != 0 || transform.flip.horizontal || transform.flip.vertical;
    if (turned || !IsDrawableImage(bytes)) {
      canvas_.Note("A picture isn't drawn because it is rotated or mirrored, isn't PNG, or is too large: " +
                   NameOf(object) + ".");
      return;
    }
    const ShapeStyle style = ReadStyle(palette_, xlsx::ShapePropertiesOf(object), {});
    if (style.shadow) {
      const Fill opaque = SolidFill{};
      canvas_.AddShadow({Role::kShape, 0, number_}, Path().AddRect(frame), opaque, style.stroke,
                        *style.shadow);
    }
    const Rect place = Uncropped(xml::Child(fill, "srcRect"), frame);
    if (place != frame) canvas_.PushClip(Path().AddRect(frame));
    canvas_.Target().items.push_back({{Role::kShape, 0, number_}, ImageItem{std::move(bytes), place}});
    if (place != frame) canvas_.PopClip();
    canvas_.Add({Role::kShape, 0, number_}, Path().AddRect(frame), {}, style.stroke);
  }
  /// Returns the rectangle of a whole picture if a frame shows only a part of it.
  static Rect Uncropped(pugi::xml_node crop, const Rect& frame) {
    const auto share = [&](const char* side) {
      const double thousandths = xml::NumberAttribute(crop, side, 0) / 100000;
      return std::isfinite(thousandths) ? std::clamp(thousandths, -1.0, 0.95) : 0;
    };
    const double left = share("l"), top = share("t"), across = 1 - left - share("r"),
                 down = 1 - top - share("b");
    constexpr double kLeast = 0.01;  // share of the picture
    if (across < kLeast || down < kLeast) return frame;
    const double width = frame.width / across, height = frame.height / down;
    return {frame.left - left * width, frame.top - top * height, width, height};
  }

  Canvas& canvas_;
  const Palette& palette_;
  int number_;
  const ImageSource& images_;
};

}  // namespace

void DrawShapeObject(Canvas& canvas, const Palette& palette, pugi::xml_node object, const Rect& frame,
                     int number, const ImageSource& images) {
  ObjectPainter(canvas, palette, number, images).Paint(object, frame, {}, {}, 0);
}

}  // namespace plotsmith::render
