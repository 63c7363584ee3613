#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The filling of an area of a chart.
class Interior {
 public:
  virtual ~Interior() = default;

  /// An index into the palette (the nearest, for a colour that isn't in it), xlColorIndexNone for no filling
  /// or xlColorIndexAutomatic.
  virtual std::int32_t ColorIndex() = 0;
  virtual void SetColorIndex(std::int32_t index) = 0;
  /// Red + 256 green + 65536 blue; so for the pattern's colour below.
  virtual std::int32_t Color() = 0;
  virtual void SetColor(std::int32_t color) = 0;
  /// XlPattern.
  virtual std::int32_t Pattern() = 0;
  virtual void SetPattern(std::int32_t pattern) = 0;
  virtual std::int32_t PatternColor() = 0;
  virtual void SetPatternColor(std::int32_t color) = 0;
  /// Of the pattern's lines, as ColorIndex of their ground.
  virtual std::int32_t PatternColorIndex() = 0;
  virtual void SetPatternColorIndex(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel
