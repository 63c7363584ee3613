#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// The fill of a chart element: a colour, or a pattern with a second colour for its lines.
class Interior {
 public:
  virtual ~Interior() = default;

  /// The colour as a palette index, xlColorIndexNone (no fill) or xlColorIndexAutomatic. For a colour outside
  /// the palette this returns the nearest entry. Setting an index sets the current colour of that entry.
  /// Raises error 9 for other numbers.
  ///@{
  virtual std::int32_t ColorIndex() = 0;
  virtual void SetColorIndex(std::int32_t index) = 0;
  ///@}

  /// The colour. For a pattern it is the background colour, for an automatic fill the colour that the host
  /// draws, and white if there is no fill.
  virtual std::int32_t Color() = 0;
  /// Sets the colour. A pattern is kept; any other fill becomes solid. Raises error 1004 for a number that
  /// isn't a colour.
  virtual void SetColor(std::int32_t color) = 0;

  /// The pattern (XlPattern): xlNone if there is no fill. A gradient, or any other fill without a pattern,
  /// counts as solid. A new pattern takes the old colours. Raises error 1004 for others.
  ///@{
  virtual std::int32_t Pattern() = 0;
  virtual void SetPattern(std::int32_t pattern) = 0;
  ///@}

  /// The colour of the pattern's lines. Without a pattern it is black, and setting it has no effect.
  ///@{
  virtual std::int32_t PatternColor() = 0;
  virtual void SetPatternColor(std::int32_t color) = 0;
  ///@}

  /// The colour of the pattern's lines as in ColorIndex. Without a pattern it is xlColorIndexAutomatic, and
  /// setting it has no effect.
  ///@{
  virtual std::int32_t PatternColorIndex() = 0;
  virtual void SetPatternColorIndex(std::int32_t index) = 0;
  ///@}
};

}  // namespace plotsmith::excel
