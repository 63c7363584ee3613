#pragma once

#include <istream>
#include <ostream>

namespace plotsmith::cli {

/// Where a command reads and writes: data on `out`, messages and progress on `err`.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool terminal = false;     ///< a person watches `err`, so progress is worth showing
  bool outTerminal = false;  ///< `out` is a terminal, which is no place for a workbook
};

}  // namespace plotsmith::cli
