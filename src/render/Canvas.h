#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "render/ChartDrawing.h"
#include "render/Drawing.h"
#include "render/Shadow.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// Appends items to a drawing, and says what isn't drawn. A sentence is kept once.
class Canvas {
 public:
  Canvas(Drawing& drawing, const TextMeasure& measure, Notes& notes)
      : drawing_(drawing), measure_(measure), notes_(notes) {}

  /// Appends a path unless it has neither filling nor line, or no finite place.
  void Add(Tag tag, Path path, const Fill& fill, const Stroke& stroke = {});
  /// Appends a rectangle that readers of the drawing look for, even if nothing of it is seen.
  void AddFrame(Tag tag, const Rect& box, const Fill& fill, const Stroke& stroke);
  /// Appends the shadow of a shape, which is added after it. `tag` is that of the shape.
  void AddShadow(Tag tag, const Path& path, const Fill& fill, const Stroke& stroke, const Shadow& shadow);
  void AddLine(Tag tag, Point from, Point to, const Stroke& stroke);
  /// Appends one line of text and fills in its measures.
  void AddText(Tag tag, TextItem text);
  void PushClip(const Path& path);
  void PopClip();
  void Note(std::string sentence);

  const TextMeasure& Measure() const { return measure_; }
  Rect Bounds() const { return {0, 0, drawing_.width, drawing_.height}; }
  Drawing& Target() { return drawing_; }

 private:
  void AddPictures(Tag tag, const Path& path, const PictureFill& fill);

  bool TakeShadow(const Rect& bounds);

  std::size_t shadowsLeft_ = 5000;
  double shadowAreaLeft_ = 40;  ///< in areas of the drawing, as soft edges take time
  std::size_t pictureBytesLeft_ = 16 * 1024 * 1024;
  Drawing& drawing_;
  const TextMeasure& measure_;
  Notes& notes_;
};

}  // namespace plotsmith::render
