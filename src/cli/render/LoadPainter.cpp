#include "cli/render/LoadPainter.h"

#include <exception>

#include "cli/Command.h"
#include "render/TextMeasure.h"

namespace plotsmith::cli {

const render::TextMeasure& LoadMeasure(PictureFormat format) {
  return format == PictureFormat::kSvg ? LoadFonts() : LoadPainter().Measure();
}

void LoadMeasureAhead(PictureFormat format) {
  try {
    // Most charts have their texts in this font. Finding a font takes longer than drawing a chart.
    LoadMeasure(format).Measure("0", render::Font{"Calibri", 10});
  } catch (const std::exception&) {
    // LoadMeasure will report the error again
  }
}

bool ReportMissingFonts(const render::TextMeasure& measure, const Streams& streams) {
  if (measure.HasFonts()) return false;
  streams.err << "plotsmith: no fonts are installed, so texts are misplaced or missing.\n";
  return true;
}

}  // namespace plotsmith::cli
