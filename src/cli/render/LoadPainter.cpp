#include "cli/render/LoadPainter.h"

namespace plotsmith::cli {

bool SayIfFontsAreMissing(const Streams& streams) {
  if (LoadPainter().HasFonts()) return false;
  streams.err
      << "plotsmith: no fonts are installed, so texts are not where they should be, or are missing.\n";
  return true;
}

}  // namespace plotsmith::cli
