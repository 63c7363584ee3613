#include "render/fonts/Fonts.h"
#include "render/module/Module.h"

extern "C" {

const char* plotsmith_module_version() { return PLOTSMITH_VERSION; }

const plotsmith::render::TextMeasure* plotsmith_fonts_measure() {
  static const plotsmith::render::Fonts fonts;
  return &fonts;
}
}
