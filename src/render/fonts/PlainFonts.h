#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "render/TextMeasure.h"

namespace plotsmith::render {

/// Measures texts with the installed fonts. A font that isn't installed is replaced by its substitute. Widths
/// aren't rounded and fonts aren't hinted, so that the results depend only on the font files.
///
/// HarfBuzz measures a plain text: one that consists of Latin letters and common characters, and whose font
/// has all of them. Such a text is a single run of glyphs. All other texts are left to another measure, such
/// as Pango, which can split them into runs and fonts, and which takes longer to load.
///
/// Fonts and plain texts are cached. Several threads may use the same object, which serves one of them at a
/// time.
class PlainFonts final : public TextMeasure {
 public:
  /// Returns the measure of the other texts. It is called when such a text is measured.
  using Others = std::function<const TextMeasure&()>;

  /// Makes an object with empty caches. Reads the list of fonts.
  explicit PlainFonts(Others others);
  ~PlainFonts() override;
  PlainFonts(const PlainFonts&) = delete;
  PlainFonts& operator=(const PlainFonts&) = delete;

  TextExtent Measure(std::string_view line, const Font& font) const override;
  bool HasFonts() const override;

 private:
  struct State;
  std::unique_ptr<State> state_;
  Others others_;
};

}  // namespace plotsmith::render
