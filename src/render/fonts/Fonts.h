#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "render/TextMeasure.h"

typedef struct _PangoContext PangoContext;
typedef struct _PangoLayoutLine PangoLayoutLine;

namespace plotsmith::render {

/// Measures texts with the installed fonts, using Pango. A font that isn't installed is replaced by its
/// substitute. Hinting and the rounding of widths are turned off, so that the results depend only on the font
/// files. Fonts and texts are cached. Several threads may use the same object, which serves one of them at a
/// time.
class Fonts : public TextMeasure {
 public:
  /// Makes an object with empty caches. It loads the fonts with FreeType.
  Fonts();
  ~Fonts() override;
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  TextExtent Measure(std::string_view line, const Font& font) const override;
  bool HasFonts() const override;

 protected:
  /// Takes over a context whose units are points and whose font options turn off hinting.
  explicit Fonts(PangoContext* context);
  /// Passes the laid-out glyphs of a line of text to a function. They exist until it returns.
  void WithGlyphs(std::string_view line, const Font& font,
                  const std::function<void(PangoLayoutLine*)>& use) const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace plotsmith::render
