#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The font of a text on a chart or in a shape. A property is Null if parts of the text differ. The host
/// converts the values that are set, so a colour may also be a string. Setting a property raises error 13 or
/// 94 if the value can't be converted, and error 1004 if it is out of range.
class Font {
 public:
  virtual ~Font() = default;

  /// The name of the typeface. An empty name is out of range.
  ///@{
  virtual Variant Name() = 0;
  virtual void SetName(const Variant& name) = 0;
  ///@}

  /// The size in points, from 1 to 409.
  ///@{
  virtual Variant Size() = 0;
  virtual void SetSize(const Variant& size) = 0;
  ///@}

  /// The style: "Regular", "Bold", "Italic" or "Bold Italic".
  ///@{
  virtual Variant FontStyle() = 0;
  virtual void SetFontStyle(const Variant& style) = 0;
  ///@}

  /// Makes the font bold or not; italics don't change.
  virtual void SetBold(bool value) = 0;

  /// The colour: red + 256 green + 65536 blue.
  ///@{
  virtual Variant Color() = 0;
  virtual void SetColor(const Variant& color) = 0;
  ///@}

  /// The background of the text (XlBackground). A host whose files can't store it ignores the setting and
  /// always returns xlBackgroundAutomatic.
  ///@{
  virtual Variant Background() = 0;
  virtual void SetBackground(std::int32_t background) = 0;
  ///@}
};

}  // namespace plotsmith::excel
