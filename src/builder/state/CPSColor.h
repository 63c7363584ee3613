#pragma once

#include <utility>

#include "runtime/Variant.h"

namespace plotsmith {

/// The fill of a series. The properties have the values of an Interior's properties of the same names.
class CPSColor {
 public:
  const runtime::Variant& Color() const { return vColor_; }
  void SetColor(runtime::Variant vColor) { vColor_ = std::move(vColor); }
  const runtime::Variant& ColorIndex() const { return vColorIndex_; }
  void SetColorIndex(runtime::Variant vColorIndex) { vColorIndex_ = std::move(vColorIndex); }
  const runtime::Variant& Pattern() const { return vPattern_; }
  void SetPattern(runtime::Variant vPattern) { vPattern_ = std::move(vPattern); }
  const runtime::Variant& PatternColor() const { return vPatternColor_; }
  void SetPatternColor(runtime::Variant vPatternColor) { vPatternColor_ = std::move(vPatternColor); }
  const runtime::Variant& PatternColorIndex() const { return vPatternColorIndex_; }
  void SetPatternColorIndex(runtime::Variant vIndex) { vPatternColorIndex_ = std::move(vIndex); }

 private:
  runtime::Variant vColor_;
  runtime::Variant vColorIndex_;
  runtime::Variant vPattern_;
  runtime::Variant vPatternColor_;
  runtime::Variant vPatternColorIndex_;
};

}  // namespace plotsmith
