#pragma once

#include <istream>
#include <ostream>

namespace plotsmith::cli {

/// The streams of a command: data on `out`, messages and progress on `err`.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool terminal = false;     ///< Whether `err` is a terminal, so that progress is shown.
  bool outTerminal = false;  ///< Whether `out` is a terminal, which can't take a workbook.
};

}  // namespace plotsmith::cli
