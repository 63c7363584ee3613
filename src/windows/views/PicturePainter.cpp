#include "windows/views/PicturePainter.h"

#include <algorithm>
#include <cmath>
#include <variant>
#include <vector>

namespace plotsmith::windows {
namespace {

/// GDI draws without smoothing. The picture is drawn larger by this factor and then shrunk.
constexpr int kSmoothing = 4;

COLORREF ColorOf(pictures::Rgb color) { return RGB(color.red, color.green, color.blue); }

/// A bitmap in memory that can be drawn on.
class Canvas {
 public:
  Canvas(HDC like, int width, int height)
      : context_(CreateCompatibleDC(like)), bitmap_(CreateCompatibleBitmap(like, width, height)) {
    before_ = SelectObject(context_, bitmap_);
  }
  ~Canvas() {
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  operator HDC() const { return context_; }

 private:
  HDC context_;
  HBITMAP bitmap_;
  HGDIOBJ before_;
};

/// Draws shapes that are given in points.
class Painter {
 public:
  /// Makes a painter. `scale` is the number of pixels per point.
  Painter(HDC context, double scale) : context_(context), scale_(scale) {}

  void Draw(const pictures::Shape& shape) {
    const HBRUSH brush = CreateSolidBrush(ColorOf(shape.oFill));
    const HPEN pen = shape.oOutline ? CreatePen(PS_SOLID, std::max(Pixels(shape.oOutline->dWidth), 1L),
                                                ColorOf(shape.oOutline->oColor))
                                    : static_cast<HPEN>(GetStockObject(NULL_PEN));
    const HGDIOBJ brushBefore = SelectObject(context_, brush), penBefore = SelectObject(context_, pen);
    std::visit([this](const auto& form) { Draw(form); }, shape.oForm);
    SelectObject(context_, brushBefore);
    SelectObject(context_, penBefore);
    DeleteObject(brush);
    DeleteObject(pen);
  }

 private:
  LONG Pixels(double points) const { return std::lround(points * scale_); }

  void Draw(const pictures::Polygon& polygon) {
    std::vector<POINT> points;
    for (const pictures::Point& point : polygon.aPoints) points.push_back({Pixels(point.x), Pixels(point.y)});
    Polygon(context_, points.data(), static_cast<int>(points.size()));
  }

  void Draw(const pictures::Ellipse& ellipse) {
    const auto& [center, radiusX, radiusY] = ellipse;
    Ellipse(context_, Pixels(center.x - radiusX), Pixels(center.y - radiusY), Pixels(center.x + radiusX),
            Pixels(center.y + radiusY));
  }

  HDC context_;
  double scale_;
};

}  // namespace

void PaintPicture(HDC context, const pictures::Picture& picture, const RECT& area, HBRUSH background) {
  FillRect(context, &area, background);
  const int width = area.right - area.left, height = area.bottom - area.top;
  const double scale = std::min(width / picture.dWidth, height / picture.dHeight);
  const int shownWidth = static_cast<int>(picture.dWidth * scale);
  const int shownHeight = static_cast<int>(picture.dHeight * scale);
  if (shownWidth <= 0 || shownHeight <= 0) return;
  const RECT whole = {0, 0, shownWidth * kSmoothing, shownHeight * kSmoothing};
  const Canvas canvas(context, whole.right, whole.bottom);
  FillRect(canvas, &whole, background);
  Painter painter(canvas, scale * kSmoothing);
  for (const pictures::Shape& shape : picture.aShapes) painter.Draw(shape);
  SetStretchBltMode(context, HALFTONE);
  SetBrushOrgEx(context, 0, 0, nullptr);
  StretchBlt(context, area.left + (width - shownWidth) / 2, area.top + (height - shownHeight) / 2, shownWidth,
             shownHeight, canvas, 0, 0, whole.right, whole.bottom, SRCCOPY);
}

}  // namespace plotsmith::windows
