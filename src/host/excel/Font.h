#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The font of a text on a chart. A getter gives Null where the text mixes several values; what is set passes
/// through the host's own conversion, so that a colour may come as text.
class Font {
 public:
  virtual ~Font() = default;

  virtual Variant Name() = 0;
  virtual void SetName(const Variant& name) = 0;
  /// Points.
  virtual Variant Size() = 0;
  virtual void SetSize(const Variant& size) = 0;
  /// "Regular", "Bold", "Italic" or "Bold Italic".
  virtual Variant FontStyle() = 0;
  virtual void SetFontStyle(const Variant& style) = 0;
  virtual Variant Color() = 0;
  virtual void SetColor(const Variant& color) = 0;
};

}  // namespace plotsmith::excel
