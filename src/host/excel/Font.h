#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The font of a text on a chart. What is set passes through the host's own conversion, so that a colour may
/// come as text.
class Font {
 public:
  virtual ~Font() = default;

  virtual void SetName(const Variant& name) = 0;
  /// Points.
  virtual void SetSize(const Variant& size) = 0;
  /// "Regular", "Bold", "Italic" or "Bold Italic".
  virtual void SetFontStyle(const Variant& style) = 0;
  /// Red + 256 green + 65536 blue.
  virtual void SetColor(const Variant& color) = 0;
  // What is read is Null where the text's stretches differ.
  virtual Variant Name() = 0;
  virtual Variant Size() = 0;
  virtual Variant FontStyle() = 0;
  virtual Variant Color() = 0;
  /// XlBackground.
  virtual Variant Background() = 0;
  virtual void SetBackground(std::int32_t background) = 0;
  virtual void SetBold(bool value) = 0;
};

}  // namespace plotsmith::excel
