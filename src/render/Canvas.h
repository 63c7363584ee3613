#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "render/Drawing.h"
#include "render/Notes.h"
#include "render/Shadow.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// Appends items to a drawing, and collects sentences about what isn't drawn.
class Canvas {
 public:
  /// The drawing, the measure and the notes must outlive the canvas.
  Canvas(Drawing& drawing, const TextMeasure& measure, Notes& notes)
      : drawing_(drawing), measure_(measure), notes_(notes) {}

  /// Appends a path. Paths that have neither filling nor line, and those that aren't on any page, are left
  /// out.
  void Add(Tag tag, Path path, const Fill& fill, const Stroke& stroke = {});
  /// Appends a rectangle even if it is invisible, for readers of the drawing who look for its place.
  void AddFrame(Tag tag, const Rect& box, const Fill& fill, const Stroke& stroke);
  /// Appends the shadow of a shape, which is added after it. `tag` is that of the shape.
  void AddShadow(Tag tag, const Path& path, const Fill& fill, const Stroke& stroke, const Shadow& shadow);
  void AddLine(Tag tag, Point from, Point to, const Stroke& stroke);
  /// Measures a line of text and appends it. Empty texts are left out.
  void AddText(Tag tag, TextItem text);
  /// Limits what is appended up to the matching PopClip to the inside of the path.
  void PushClip(const Path& path);
  /// Ends the last PushClip.
  void PopClip();
  /// Adds a sentence about what isn't drawn. A sentence that was added before isn't repeated.
  void Note(std::string sentence);

  /// Measures texts for this drawing.
  const TextMeasure& Measure() const { return measure_; }
  /// The whole drawing.
  Rect Bounds() const { return {0, 0, drawing_.width, drawing_.height}; }
  /// The drawing that items are appended to.
  Drawing& Target() { return drawing_; }

 private:
  /// Appends the pictures of a filling, clipped to the path.
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
