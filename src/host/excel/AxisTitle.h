#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// The title of an axis.
class AxisTitle {
 public:
  virtual ~AxisTitle() = default;

  /// The text, with line feeds between lines. A title without a text returns "Axis Title". A new text takes
  /// the format of the old first line.
  ///@{
  virtual std::string Text() = 0;
  virtual void SetText(std::string_view text) = 0;
  ///@}

  /// Sets the rotation in degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
  /// Raises error 1004 for others.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  /// The font of the whole text.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font scales with the chart: a Boolean, or Null if parts of the text differ. Hosts from
  /// version 12 on accept the setting and ignore it.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel
