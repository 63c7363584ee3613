#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/Session.h"
#include "cli/Streams.h"

namespace plotsmith::cli {

/// A workbook to process.
struct BookRun {
  std::string book;                   ///< The path of the workbook.
  std::optional<std::string> output;  ///< The path of the result; absent for the original file.
};

/// The result of a run.
struct BookResult {
  int code = 0;          ///< The exit code.
  RefreshCounts counts;  ///< The numbers of charts by their outcome.
};

/// Returns the runs for the workbooks of a command line. A workbook that is named twice has one run. With
/// several workbooks, or if `output` is a folder, each result goes into that folder with its own name. Throws
/// CommandError if two outputs would be the same file, or if an output would be its own workbook.
std::vector<BookRun> PlanRuns(const std::vector<std::string>& books,
                              const std::optional<std::string>& output);

/// Performs a run, with its messages and data on the given streams.
using DoRun = std::function<BookResult(const BookRun&, const Streams&)>;

/// Performs several runs in at most `processes` processes. The output of a run is printed together, in the
/// order of the runs, with the workbook's name before each line. A run that fails doesn't stop the others.
/// Returns the highest exit code, or 128 plus the signal's number if a signal stopped the work. With
/// `verbose`, each run prints its counts.
int RunBatch(const std::vector<BookRun>& runs, const DoRun& doRun, std::size_t processes, bool verbose,
             const Streams& streams);

/// Returns a text such as "8 charts refreshed, 1 unavailable".
std::string CountsText(const RefreshCounts& counts);

}  // namespace plotsmith::cli
