#include "cli/render/LoadPainter.h"

#include <system_error>

#include "cli/Command.h"
#include "render/TextMeasure.h"

namespace plotsmith::cli {

std::future<void> LoadPainterAhead() {
  const auto load = [] {
    try {
      // Most charts have their texts in this font. To find a font takes longer than to draw a chart.
      LoadPainter().Measure().Measure("0", render::Font{"Calibri", 10});
    } catch (const CommandError&) {
      // LoadPainter will report the error again
    }
  };
  try {
    return std::async(std::launch::async, load);
  } catch (const std::system_error&) {
    return {};  // No thread could be created.
  }
}

bool ReportMissingFonts(const Streams& streams) {
  if (LoadPainter().HasFonts()) return false;
  streams.err << "plotsmith: no fonts are installed, so texts are misplaced or missing.\n";
  return true;
}

}  // namespace plotsmith::cli
