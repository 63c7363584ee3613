#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/Session.h"
#include "cli/Streams.h"

namespace plotsmith::cli {

/// A workbook to work on, and where the result goes; nothing for where it came from.
struct BookRun {
  std::string book;
  std::optional<std::string> output;
};

/// What came of it.
struct BookResult {
  int code = 0;  ///< exit code
  RefreshCounts counts;
};

/// The runs for the workbooks of a command line. A workbook that is named twice has one run. With several, or
/// where it is a folder, `output` is the folder in which each result goes by its own name. A CommandError if
/// the outputs can't be told apart, or one would be its own workbook.
std::vector<BookRun> PlanRuns(const std::vector<std::string>& books,
                              const std::optional<std::string>& output);

/// Does one run, with its messages and data on the streams given.
using DoRun = std::function<BookResult(const BookRun&, const Streams&)>;

/// Does several runs, in at most `processes` at a time. What a run prints comes out together, each line with
/// the workbook's name before it, in the order of the runs. One that fails doesn't stop the others. Answers
/// the worst exit code; 128 and the signal's number if one stopped the work. `verbose` has each run say its
/// counts.
int RunBatch(const std::vector<BookRun>& runs, const DoRun& doRun, std::size_t processes, bool verbose,
             const Streams& streams);

/// "8 charts refreshed, 1 unavailable"
std::string CountsText(const RefreshCounts& counts);

}  // namespace plotsmith::cli
