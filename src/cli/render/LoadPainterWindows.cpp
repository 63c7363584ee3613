#include "cli/Command.h"
#include "cli/render/LoadPainter.h"

namespace plotsmith::cli {

const render::Painter& LoadPainter() {
  throw CommandError(exit_code::kUsage, "drawing isn't supported on Windows yet; use plotsmith on Linux.");
}

}  // namespace plotsmith::cli
