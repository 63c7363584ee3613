#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// A stretch of a shape's text. Positions and lengths count UTF-16 units, from 1, a line feed between two
/// paragraphs among them.
class Characters {
 public:
  virtual ~Characters() = default;

  /// As much of it as there is: empty for a stretch behind the text's end.
  virtual std::string Text() = 0;
  /// Replaces the stretch; all of the shape's text then looks as it began. Error 1004 for what can't bear a
  /// text, such as a picture.
  virtual void SetText(std::string_view text) = 0;
  /// Replaces the stretch, as SetText; a stretch that begins behind the text's end appends.
  virtual void Insert(std::string_view text) = 0;
  /// Of the stretch alone.
  virtual Ref<excel::Font> Font() = 0;
};

}  // namespace plotsmith::excel
