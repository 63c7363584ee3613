#pragma once

typedef struct hb_font_t hb_font_t;

namespace plotsmith::render {

/// The ascent and the descent of a font, in points.
struct FontHeights {
  /// The lengths above and below the baseline.
  double ascent = 0, descent = 0;
};

/// Returns the heights of a font of a size in points as Windows defines them: the clipping heights of the
/// font, and the part of its line gap that these don't contain. nullptr, and a font that isn't OpenType, have
/// usual heights.
FontHeights HeightsOf(hb_font_t* font, double size);

}  // namespace plotsmith::render
