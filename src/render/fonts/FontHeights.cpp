#include "render/fonts/FontHeights.h"

#include <algorithm>
#include <cmath>
#include <hb-ot.h>

namespace plotsmith::render {

FontHeights HeightsOf(hb_font_t* font, double size) {
  int scale = 0;
  if (font != nullptr) hb_font_get_scale(font, nullptr, &scale);
  const auto ems = [&](hb_ot_metrics_tag_t tag) {
    hb_position_t position = 0;
    const bool known = scale != 0 && hb_ot_metrics_get_position(font, tag, &position);
    return known ? std::abs(static_cast<double>(position) / scale) : 0;
  };
  double ascent = ems(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_ASCENT);
  double descent = ems(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_DESCENT);
  const double line = ems(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER) +
                      ems(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER) +
                      ems(HB_OT_METRICS_TAG_HORIZONTAL_LINE_GAP);
  if (!(ascent + descent > 0)) {
    ascent = 0.9;
    descent = 0.25;
  }
  descent = std::max(descent, line - ascent);
  return {ascent * size, descent * size};
}

}  // namespace plotsmith::render
