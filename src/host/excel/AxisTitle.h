#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

/// The title along an axis.
class AxisTitle {
 public:
  virtual ~AxisTitle() = default;

  virtual void SetText(std::string_view text) = 0;
  virtual Ref<excel::Font> Font() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  /// Degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  virtual std::string Text() = 0;
  /// Null where the text's stretches differ.
  virtual Variant AutoScaleFont() = 0;
};

}  // namespace plotsmith::excel
