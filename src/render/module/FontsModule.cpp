#include "render/fonts/PlainFonts.h"
#include "render/module/Module.h"

extern "C" {

const char* plotsmith_module_version() { return PLOTSMITH_VERSION; }

const plotsmith::render::TextMeasure* plotsmith_fonts_measure(plotsmith::render::OtherMeasure* others) {
  static const plotsmith::render::PlainFonts fonts([others]() -> decltype(auto) { return others(); });
  return &fonts;
}
}
