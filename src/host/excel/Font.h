#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The font of a text, on a chart or in a shape. What is read is Null where the text's stretches differ. What
/// is set passes through the host's own conversion, so that a colour may come as text; error 13 or 94 where
/// it can't be converted, 1004 where it is out of range.
class Font {
 public:
  virtual ~Font() = default;

  /// The typeface. An empty one is out of range.
  ///@{
  virtual Variant Name() = 0;
  virtual void SetName(const Variant& name) = 0;
  ///@}

  /// Points, from 1 to 409.
  ///@{
  virtual Variant Size() = 0;
  virtual void SetSize(const Variant& size) = 0;
  ///@}

  /// "Regular", "Bold", "Italic" or "Bold Italic".
  ///@{
  virtual Variant FontStyle() = 0;
  virtual void SetFontStyle(const Variant& style) = 0;
  ///@}

  /// Bold or not; italics stay as they are.
  virtual void SetBold(bool value) = 0;

  /// Red + 256 green + 65536 blue.
  ///@{
  virtual Variant Color() = 0;
  virtual void SetColor(const Variant& color) = 0;
  ///@}

  /// What is behind the text (XlBackground). It reads xlBackgroundAutomatic, whatever was set, in a host
  /// whose files have no place for it.
  ///@{
  virtual Variant Background() = 0;
  virtual void SetBackground(std::int32_t background) = 0;
  ///@}
};

}  // namespace plotsmith::excel
