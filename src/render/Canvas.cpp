#include "render/Canvas.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::render {
namespace {

/// A coordinate, in points, that is beyond any page. Painters lose precision beyond it.
constexpr double kFarthest = 1e6;

bool IsNear(Point point) { return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest; }

bool IsNear(const Path& path) {
  return std::all_of(path.Steps().begin(), path.Steps().end(), [](const PathStep& step) {
    return IsNear(step.to) && IsNear(step.control1) && IsNear(step.control2);
  });
}

}  // namespace

void Canvas::Add(Tag tag, Path path, const Fill& fill, const Stroke& stroke) {
  const bool visible = !std::holds_alternative<std::monostate>(fill) || stroke.width > 0;
  if (!visible || path.IsEmpty() || !IsNear(path)) return;
  if (const auto* picture = std::get_if<PictureFill>(&fill)) {
    AddPictures(tag, path, *picture);
    if (stroke.width > 0) drawing_.items.push_back({tag, PathItem{std::move(path), {}, stroke}});
    return;
  }
  drawing_.items.push_back({tag, PathItem{std::move(path), fill, stroke}});
}

void Canvas::AddPictures(Tag tag, const Path& path, const PictureFill& fill) {
  constexpr double kMostTiles = 400;
  const Rect bounds = path.Bounds();
  if (!(bounds.width > 0 && bounds.height > 0)) return;
  double width = fill.tileWidth, height = fill.tileHeight;
  const bool isTiled = width > 0 && height > 0 &&
                       std::ceil(bounds.width / width) * std::ceil(bounds.height / height) <= kMostTiles;
  if (!isTiled) {
    width = bounds.width;
    height = bounds.height;
  }
  PushClip(path);
  for (double top = bounds.top; top < bounds.Bottom(); top += height) {
    for (double left = bounds.left; left < bounds.Right(); left += width) {
      if (fill.bytes->size() > pictureBytesLeft_) {
        Note("The chart has more picture fills than are drawn; the rest is left out.");
        return PopClip();
      }
      pictureBytesLeft_ -= fill.bytes->size();
      drawing_.items.push_back({tag, ImageItem{*fill.bytes, {left, top, width, height}}});
    }
  }
  PopClip();
}

void Canvas::AddFrame(Tag tag, const Rect& box, const Fill& fill, const Stroke& stroke) {
  if (std::holds_alternative<PictureFill>(fill)) {
    Add(tag, Path().AddRect(box), fill);
    drawing_.items.push_back({tag, PathItem{Path().AddRect(box), {}, stroke}});
    return;
  }
  drawing_.items.push_back({tag, PathItem{Path().AddRect(box), fill, stroke}});
}

bool Canvas::TakeShadow(const Rect& bounds) {
  const Rect page = Bounds();
  const double across = std::min(bounds.Right(), page.Right()) - std::max(bounds.left, page.left);
  const double down = std::min(bounds.Bottom(), page.Bottom()) - std::max(bounds.top, page.top);
  if (!(across > 0 && down > 0)) return false;
  shadowAreaLeft_ -= across * down / (page.width * page.height);
  if (shadowsLeft_ > 0 && shadowAreaLeft_ > 0) {
    --shadowsLeft_;
    return true;
  }
  Note("The chart has more shadows than are drawn; the rest is left out.");
  return false;
}

void Canvas::AddShadow(Tag tag, const Path& path, const Fill& fill, const Stroke& stroke,
                       const Shadow& shadow) {
  ShadowItem item{shadow.Cast(path), !std::holds_alternative<std::monostate>(fill), stroke.width,
                  shadow.color, shadow.blur};
  if (!item.filled && !(item.lineWidth > 0)) return;
  if (path.IsEmpty() || !IsNear(item.path) || !(item.color.alpha > 0)) return;
  if (const auto* solid = std::get_if<SolidFill>(&fill)) item.color.alpha *= solid->color.alpha;
  constexpr double kReach = 3;  // standard deviations beyond which a soft edge is invisible
  const double reach = item.lineWidth / 2 + kReach * item.blur;
  const Rect bounds = item.path.Bounds();
  if (!TakeShadow(
          {bounds.left - reach, bounds.top - reach, bounds.width + 2 * reach, bounds.height + 2 * reach}))
    return;
  tag.role = Role::kShadow;
  drawing_.items.push_back({tag, std::move(item)});
}

void Canvas::AddLine(Tag tag, Point from, Point to, const Stroke& stroke) {
  Path line;
  line.MoveTo(from).LineTo(to);
  Add(tag, std::move(line), {}, stroke);
}

void Canvas::AddText(Tag tag, TextItem text) {
  if (text.text.empty() || !IsNear(text.anchor)) return;
  const TextExtent extent = measure_.Measure(text.text, text.font);
  text.width = extent.width;
  text.ascent = extent.ascent;
  text.descent = extent.descent;
  drawing_.items.push_back({tag, std::move(text)});
}

void Canvas::PushClip(const Path& path) { drawing_.items.push_back({{}, render::PushClip{path}}); }

void Canvas::PopClip() { drawing_.items.push_back({{}, render::PopClip{}}); }

void Canvas::Note(std::string sentence) {
  if (std::find(notes_.begin(), notes_.end(), sentence) == notes_.end())
    notes_.push_back(std::move(sentence));
}

}  // namespace plotsmith::render
