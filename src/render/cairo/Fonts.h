#pragma once

#include <memory>
#include <string_view>

#include "render/TextMeasure.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Measures and draws texts with the installed fonts, using Pango and Cairo. A font that isn't installed is
/// replaced by its substitute. Hinting and the rounding of widths are off, so that results depend on the font
/// files alone. Fonts and texts are cached. Several threads may use one object; it measures or draws for one
/// of them at a time.
class Fonts final : public TextMeasure {
 public:
  /// Makes an object with empty caches.
  Fonts();
  ~Fonts() override;
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  TextExtent Measure(std::string_view line, const Font& font) const override;
  /// Draws a line of text with the current source. Its baseline begins at the current origin.
  void Show(cairo_t* cr, std::string_view line, const Font& font) const;
  /// Returns true if a family is installed. Upper and lower case are the same.
  static bool IsInstalled(std::string_view family);
  /// Returns true if any font is installed.
  static bool IsAnyInstalled();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::render
