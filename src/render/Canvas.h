#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "render/Drawing.h"
#include "render/Notes.h"
#include "render/Shadow.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// Adds items to a drawing, and notes about everything that isn't drawn.
class Canvas {
 public:
  /// Makes a canvas. `drawing`, `measure` and `notes` must outlive it.
  Canvas(Drawing& drawing, const TextMeasure& measure, Notes& notes)
      : drawing_(drawing), measure_(measure), notes_(notes) {}

  /// Adds a path. Paths that have neither a fill nor a line, and paths outside of the drawing, are left out.
  void Add(Tag tag, Path path, const Fill& fill, const Stroke& stroke = {});
  /// Adds a rectangle, even if it is invisible, so that the drawing contains its position.
  void AddFrame(Tag tag, const Rect& box, const Fill& fill, const Stroke& stroke);
  /// Adds the shadow of a shape. Call it before the shape is added. `tag` is the tag of the shape.
  void AddShadow(Tag tag, const Path& path, const Fill& fill, const Stroke& stroke, const Shadow& shadow);
  /// Adds a straight line.
  void AddLine(Tag tag, Point from, Point to, const Stroke& stroke);
  /// Measures a line of text and adds it. Empty texts are left out.
  void AddText(Tag tag, TextItem text);
  /// Clips the following items, up to the matching PopClip, to the inside of a path.
  void PushClip(const Path& path);
  /// Ends the last PushClip.
  void PopClip();
  /// Adds a note: a sentence about something that isn't drawn. A note that was added before isn't repeated.
  void Note(std::string sentence);

  /// Measures texts for this drawing.
  const TextMeasure& Measure() const { return measure_; }
  /// The area of the drawing.
  Rect Bounds() const { return {0, 0, drawing_.width, drawing_.height}; }
  /// The drawing to which items are added.
  Drawing& Target() { return drawing_; }

 private:
  /// Appends the pictures of a fill, clipped to the path.
  void AddPictures(Tag tag, const Path& path, const PictureFill& fill);

  bool TakeShadow(const Rect& bounds);

  std::size_t shadowsLeft_ = 5000;
  double shadowAreaLeft_ = 40;  ///< For soft shadows, in areas of the drawing.
  std::size_t pictureBytesLeft_ = 16 * 1024 * 1024;
  Drawing& drawing_;
  const TextMeasure& measure_;
  Notes& notes_;
};

}  // namespace plotsmith::render
