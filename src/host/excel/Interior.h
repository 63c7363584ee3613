#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The filling of an area of a chart: a colour and, where it is a pattern, lines in a colour of their own.
class Interior {
 public:
  virtual ~Interior() = default;

  /// An index into the palette (the nearest, for a colour that isn't in it), xlColorIndexNone for no filling
  /// or xlColorIndexAutomatic. To set an index is to set the colour that it has now; error 9 for a number
  /// that is none of these.
  ///@{
  virtual std::int32_t ColorIndex() = 0;
  virtual void SetColorIndex(std::int32_t index) = 0;
  ///@}

  /// Of a pattern, its ground; of an automatic filling, what the host draws; white without a filling.
  virtual std::int32_t Color() = 0;
  /// A pattern stays, any other filling becomes a plain one. Error 1004 for a number that is no colour.
  virtual void SetColor(std::int32_t color) = 0;

  /// XlPattern: xlNone without a filling, and solid also for one that is more than a colour, such as a
  /// gradient. A pattern that is set takes the colours over. Error 1004 for others.
  ///@{
  virtual std::int32_t Pattern() = 0;
  virtual void SetPattern(std::int32_t pattern) = 0;
  ///@}

  /// Of the pattern's lines. Where there is no pattern it reads black, and setting it does nothing.
  ///@{
  virtual std::int32_t PatternColor() = 0;
  virtual void SetPatternColor(std::int32_t color) = 0;
  ///@}

  /// Of the pattern's lines, as ColorIndex of their ground. Where there is no pattern it reads
  /// xlColorIndexAutomatic, and setting it does nothing.
  ///@{
  virtual std::int32_t PatternColorIndex() = 0;
  virtual void SetPatternColorIndex(std::int32_t index) = 0;
  ///@}
};

}  // namespace plotsmith::excel
