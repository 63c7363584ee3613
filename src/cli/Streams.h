#pragma once

#include <istream>
#include <ostream>

namespace plotsmith::cli {

/// The streams of a command.
struct Streams {
  std::istream& in;          ///< The input.
  std::ostream& out;         ///< Data.
  std::ostream& err;         ///< Messages and progress.
  bool terminal = false;     ///< Whether `err` is a terminal, so that progress is shown.
  bool outTerminal = false;  ///< Whether `out` is a terminal, which can't take a workbook.
};

}  // namespace plotsmith::cli
