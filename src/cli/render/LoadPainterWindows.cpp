#include "cli/Command.h"
#include "cli/render/LoadPainter.h"

namespace plotsmith::cli {
namespace {

[[noreturn]] void Refuse() {
  throw CommandError(exit_code::kUsage, "drawing isn't supported on Windows yet; use plotsmith on Linux.");
}

}  // namespace

const render::TextMeasure& LoadFonts() { Refuse(); }

const render::Painter& LoadPainter() { Refuse(); }

}  // namespace plotsmith::cli
