#pragma once

#include <istream>
#include <ostream>

namespace plotsmith::cli {

/// Where a command reads and writes: data on `out`, messages and progress on `err`.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool terminal = false;  ///< somebody watches `err`, so progress is worth showing
};

/// How a command ends.
namespace exit_code {
inline constexpr int kDone = 0;
inline constexpr int kSaidSomething = 1;  ///< done, but Plotsmith had something to say
inline constexpr int kUsage = 2;
inline constexpr int kFile = 3;  ///< a workbook can't be read or written
}  // namespace exit_code

}  // namespace plotsmith::cli
