#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "render/TextMeasure.h"

typedef struct _PangoLayoutLine PangoLayoutLine;

namespace plotsmith::render {

/// Lays out texts with Pango for Cairo. Hinting and the rounding of widths are turned off, and a unit is a
/// point. Fonts and texts are cached. Several threads may use the same object, which serves one of them at a
/// time.
class PangoTexts final : public TextMeasure {
 public:
  /// Makes an object with empty caches.
  PangoTexts();
  ~PangoTexts() override;
  PangoTexts(const PangoTexts&) = delete;
  PangoTexts& operator=(const PangoTexts&) = delete;

  TextExtent Measure(std::string_view line, const Font& font) const override;
  bool HasFonts() const override;
  /// Passes the laid-out glyphs of a line of text to a function. They exist until it returns.
  void WithGlyphs(std::string_view line, const Font& font,
                  const std::function<void(PangoLayoutLine*)>& use) const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::render
