#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// A part of a shape's text. Positions count from 1, and positions and lengths are in UTF-16 units. A line
/// feed between two paragraphs counts as one unit.
class Characters {
 public:
  virtual ~Characters() = default;

  /// The text of this part. It is empty after the end of the shape's text.
  virtual std::string Text() = 0;
  /// Replaces this part. The whole text of the shape then has the format of its beginning. Raises error 1004
  /// for shapes without text, such as pictures.
  virtual void SetText(std::string_view text) = 0;
  /// Replaces this part in the same way as SetText. If it begins after the end of the text, the new text is
  /// appended.
  virtual void Insert(std::string_view text) = 0;
  /// The font of this part.
  virtual Ref<excel::Font> Font() = 0;
};

}  // namespace plotsmith::excel
