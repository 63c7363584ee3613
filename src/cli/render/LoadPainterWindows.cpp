#include "cli/Command.h"
#include "cli/render/LoadPainter.h"

namespace plotsmith::cli {

const render::Painter& LoadPainter() {
  throw CommandError(exit_code::kUsage, "nothing can be drawn under Windows yet; plotsmith on Linux draws.");
}

}  // namespace plotsmith::cli
