#pragma once

#include <utility>

#include "runtime/Variant.h"

namespace plotsmith {

/// The fill of a series. The properties have the values of the Interior properties with the same names.
class CPSColor {
 public:
  /// The fill colour, as in Interior.Color.
  const runtime::Variant& Color() const { return vColor_; }
  /// Sets the fill colour.
  void SetColor(runtime::Variant vColor) { vColor_ = std::move(vColor); }
  /// The palette index of the fill colour, as in Interior.ColorIndex.
  const runtime::Variant& ColorIndex() const { return vColorIndex_; }
  /// Sets the palette index of the fill colour.
  void SetColorIndex(runtime::Variant vColorIndex) { vColorIndex_ = std::move(vColorIndex); }
  /// The pattern, a member of XlPattern.
  const runtime::Variant& Pattern() const { return vPattern_; }
  /// Sets the pattern.
  void SetPattern(runtime::Variant vPattern) { vPattern_ = std::move(vPattern); }
  /// The second colour of the pattern, as in Interior.PatternColor.
  const runtime::Variant& PatternColor() const { return vPatternColor_; }
  /// Sets the second colour of the pattern.
  void SetPatternColor(runtime::Variant vPatternColor) { vPatternColor_ = std::move(vPatternColor); }
  /// The palette index of the pattern's second colour, as in Interior.PatternColorIndex.
  const runtime::Variant& PatternColorIndex() const { return vPatternColorIndex_; }
  /// Sets the palette index of the pattern's second colour.
  void SetPatternColorIndex(runtime::Variant vIndex) { vPatternColorIndex_ = std::move(vIndex); }

 private:
  runtime::Variant vColor_;
  runtime::Variant vColorIndex_;
  runtime::Variant vPattern_;
  runtime::Variant vPatternColor_;
  runtime::Variant vPatternColorIndex_;
};

}  // namespace plotsmith
