#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// The title along an axis.
class AxisTitle {
 public:
  virtual ~AxisTitle() = default;

  /// Lines are parted by line feeds. Without a text of its own it reads "Axis Title"; one that is set looks
  /// as the first line did.
  ///@{
  virtual std::string Text() = 0;
  virtual void SetText(std::string_view text) = 0;
  ///@}

  /// Degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical; error 1004 for others.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  /// Of all of the text.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font follows the chart's size: a Boolean, or Null where the text's stretches differ. Hosts
  /// from version 12 on accept what is set, and nothing follows.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel
