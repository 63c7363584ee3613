#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// A stretch of a shape's text. Positions and lengths count UTF-16 units, from 1.
class Characters {
 public:
  virtual ~Characters() = default;

  /// Replaces the stretch.
  virtual void SetText(std::string_view text) = 0;
  /// Replaces the stretch, as SetText; a stretch that begins behind the text's end appends.
  virtual void Insert(std::string_view text) = 0;
  virtual std::string Text() = 0;
  virtual Ref<excel::Font> Font() { Pending(); }
};

}  // namespace plotsmith::excel
