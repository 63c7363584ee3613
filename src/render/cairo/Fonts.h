#pragma once

#include <memory>
#include <string_view>

#include "render/TextMeasure.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// The fonts of this machine, through Pango and Cairo. A font that isn't installed has its named substitute.
/// Hinting and the rounding of widths are off, so that results depend on the font files alone. What was
/// looked up and laid out once is kept. Several threads may use one object; a text is measured or drawn for
/// one of them at a time.
class Fonts final : public TextMeasure {
 public:
  Fonts();
  ~Fonts() override;
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  TextExtent Measure(std::string_view line, const Font& font) const override;
  /// Draws the text with the current source; its baseline begins at the current origin.
  void Show(cairo_t* cr, std::string_view line, const Font& font) const;
  /// Whether the family is installed; case aside.
  static bool IsInstalled(std::string_view family);
  /// Whether any font is installed.
  static bool IsAnyInstalled();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::render
