#include "render/Composition.h"

namespace plotsmith::render {
namespace {

/// Scales the items of a drawing and moves its top left corner to a point.
class Placer {
 public:
  Placer(Point corner, double scale) : corner_(corner), scale_(scale) {}

  Item operator()(const Item& item) const {
    return {item.tag, std::visit([&](const auto& content) { return decltype(item.content)(At(content)); },
                                 item.content)};
  }

 private:
  Point At(Point point) const { return {corner_.x + point.x * scale_, corner_.y + point.y * scale_}; }
  Path At(const Path& path) const {
    return path.Mapped([this](Point point) { return At(point); });
  }
  PathItem At(const PathItem& item) const {
    PathItem placed{At(item.path), item.fill, item.stroke};
    placed.stroke.width *= scale_;
    for (double& dash : placed.stroke.dashes) dash *= scale_;
    return placed;
  }
  TextItem At(TextItem item) const {
    item.anchor = At(item.anchor);
    for (double* length : {&item.font.size, &item.width, &item.ascent, &item.descent}) *length *= scale_;
    return item;
  }
  ShadowItem At(const ShadowItem& item) const {
    return {At(item.path), item.filled, item.lineWidth * scale_, item.color, item.blur * scale_};
  }
  PushClip At(const PushClip& clip) const { return {At(clip.path)}; }
  PopClip At(const PopClip&) const { return {}; }
  ImageItem At(const ImageItem& item) const {
    const Point corner = At(Point{item.place.left, item.place.top});
    return {item.bytes, {corner.x, corner.y, item.place.width * scale_, item.place.height * scale_}};
  }

  Point corner_;
  double scale_;
};

}  // namespace

Drawing Scaled(const Drawing& drawing, double scale) {
  Drawing scaled{drawing.width * scale, drawing.height * scale, drawing.title, drawing.description, {}};
  const Placer place({0, 0}, scale);
  for (const Item& item : drawing.items) scaled.items.push_back(place(item));
  return scaled;
}

void Place(Drawing& page, const Drawing& drawing, Point corner, double scale) {
  const Placer place(corner, scale);
  Path bounds;
  bounds.AddRect({corner.x, corner.y, drawing.width * scale, drawing.height * scale});
  page.items.push_back({{}, PushClip{bounds}});
  for (const Item& item : drawing.items) page.items.push_back(place(item));
  page.items.push_back({{}, PopClip{}});
}

}  // namespace plotsmith::render
