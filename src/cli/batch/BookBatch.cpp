#include "cli/batch/BookBatch.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "cli/Failures.h"
#include "cli/Session.h"
#include "cli/batch/Workers.h"
#include "cli/check/Words.h"
#include "runtime/Utf8Path.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

/// Returns the canonical path, so that two names of one file are equal.
fs::path CanonicalPath(const std::string& path) {
  std::error_code error;
  const fs::path place = fs::weakly_canonical(runtime::PathOf(path), error);
  return error ? runtime::PathOf(path) : place;
}

std::vector<std::string> EachOnce(const std::vector<std::string>& books) {
  std::vector<std::string> once;
  std::set<fs::path> places;
  for (const std::string& book : books) {
    if (places.insert(CanonicalPath(book)).second) once.push_back(book);
  }
  return once;
}

/// Plans a run for each workbook, whose result has the same name in the folder.
std::vector<BookRun> RunsInto(const std::string& folder, const std::vector<std::string>& books) {
  std::vector<BookRun> runs;
  std::map<std::string, std::string> named;
  for (const std::string& book : books) {
    const std::string name = runtime::Utf8Of(runtime::PathOf(book).filename());
    const auto [other, isNew] = named.emplace(name, book);
    if (!isNew) {
      throw CommandError(exit_code::kUsage, "\"" + other->second + "\" and \"" + book +
                                                "\" would both be written to \"" + name + "\" in \"" +
                                                folder + "\".");
    }
    const std::string output = runtime::Utf8Of(runtime::PathOf(folder) / runtime::PathOf(name));
    if (CanonicalPath(output) == CanonicalPath(book)) {
      throw CommandError(exit_code::kUsage, "\"" + book + "\" is in the folder \"" + folder +
                                                "\" itself; without -o it is refreshed in place.");
    }
    runs.push_back({book, output});
  }
  return runs;
}

/// The report of a worker process about a run: the counts and the output.
struct RunReport {
  BookResult result;
  std::string out, err;
};

std::string Packed(const RunReport& report) {
  std::ostringstream text;
  const BookResult& result = report.result;
  text << result.code << ' ' << result.counts.refreshed << ' ' << result.counts.unavailable << ' '
       << report.out.size() << '\n'
       << report.out << report.err;
  return text.str();
}

RunReport Unpacked(const std::string& text) {
  RunReport report;
  std::size_t length = 0;
  std::istringstream numbers(text);
  numbers >> report.result.code >> report.result.counts.refreshed >> report.result.counts.unavailable >>
      length;
  const std::size_t begin = text.find('\n') + 1;
  report.out = text.substr(begin, length);
  report.err = text.substr(begin + length);
  return report;
}

RunReport Failure(const std::string& sentence) {
  return {{exit_code::kFile, {}}, "", "plotsmith: " + sentence + "\n"};
}

void PrintBehind(std::ostream& out, const std::string& name, const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) out << name << ": " << line << '\n';
}

/// Collects the reports and prints them in the order of the runs.
class BatchOutput {
 public:
  BatchOutput(const std::vector<BookRun>& runs, bool verbose, const Streams& streams)
      : runs_(runs), verbose_(verbose), streams_(streams), reports_(runs.size()) {}

  void Take(std::size_t run, RunReport report) {
    reports_[run] = std::move(report);
    ++done_;
    ClearProgress();
    for (; printed_ < runs_.size() && reports_[printed_]; ++printed_) Print(printed_);
    ShowProgress();
  }

  /// Prints the remaining reports, which wait for unfinished runs, and the summary. Returns the highest exit
  /// code.
  int Finish(int signal) {
    ClearProgress();
    for (; printed_ < runs_.size(); ++printed_) {
      if (signal == 0 && !reports_[printed_])
        reports_[printed_] = Failure("no process can be started for it; nothing was changed.");
      if (reports_[printed_]) Print(printed_);
    }
    if (signal != 0) {
      streams_.err << "plotsmith: stopped by a signal; " << done_ << " of "
                   << Counted(runs_.size(), "workbook") << " done.\n";
      return kSignalled + signal;
    }
    if (verbose_ || streams_.terminal) {
      streams_.err << Counted(runs_.size(), "workbook") << ": " << CountsText(sum_);
      if (failed_ > 0) streams_.err << ", " << Counted(failed_, "workbook") << " failed";
      streams_.err << '\n';
    }
    return worst_;
  }

 private:
  static constexpr int kSignalled = 128;

  void Print(std::size_t run) {
    const RunReport& report = *reports_[run];
    const std::string& name = runs_[run].book;
    PrintBehind(streams_.out, name, report.out);
    PrintBehind(streams_.err, name, report.err);
    const BookResult& result = report.result;
    const bool failed = result.code >= exit_code::kUsage;
    if (verbose_ && !failed) streams_.err << name << ": " << CountsText(result.counts) << '\n';
    failed_ += failed ? 1 : 0;
    sum_.refreshed += result.counts.refreshed;
    sum_.unavailable += result.counts.unavailable;
    worst_ = std::max(worst_, result.code);
    reports_[run] = RunReport{};  // The report was printed and isn't needed any more.
  }

  void ShowProgress() {
    if (!streams_.terminal || done_ == runs_.size()) return;
    const std::string line =
        "Refreshed " + std::to_string(done_) + " of " + Counted(runs_.size(), "workbook") + " ...";
    streams_.err << line << std::flush;
    progressWidth_ = line.size();
  }

  void ClearProgress() {
    if (progressWidth_ > 0) streams_.err << '\r' << std::string(progressWidth_, ' ') << '\r';
    progressWidth_ = 0;
  }

  const std::vector<BookRun>& runs_;
  const bool verbose_;
  const Streams streams_;
  std::vector<std::optional<RunReport>> reports_;
  std::size_t done_ = 0;
  std::size_t printed_ = 0;
  std::size_t failed_ = 0;
  RefreshCounts sum_;
  int worst_ = exit_code::kDone;
  std::size_t progressWidth_ = 0;
};

}  // namespace

std::vector<BookRun> PlanRuns(const std::vector<std::string>& books,
                              const std::optional<std::string>& output) {
  const std::vector<std::string> once = EachOnce(books);
  std::error_code ignored;
  if (output && fs::is_directory(runtime::PathOf(*output), ignored)) return RunsInto(*output, once);
  if (IsStandardOutput(output) && once.size() > 1) {
    throw CommandError(
        exit_code::kUsage,
        "only one workbook can be written to the standard output; several can be written into a folder.");
  }
  if (output && once.size() > 1) {
    throw CommandError(exit_code::kUsage, (fs::exists(runtime::PathOf(*output), ignored)
                                               ? "\"" + *output + "\" isn't a folder"
                                               : "there is no folder \"" + *output + "\"") +
                                              "; several workbooks can only be written into a folder.");
  }
  std::vector<BookRun> runs;
  for (const std::string& book : once) runs.push_back({book, output});
  return runs;
}

int RunBatch(const std::vector<BookRun>& runs, const DoRun& doRun, std::size_t processes, bool verbose,
             const Streams& streams) {
  BatchOutput output(runs, verbose, streams);
  WorkerTasks tasks;
  tasks.count = runs.size();
  tasks.run = [&](std::size_t i) {
    std::istringstream in;
    std::ostringstream out, err;
    BookResult result;
    const int code = Guarded(err, [&] {
      result = doRun(runs[i], {in, out, err});
      return result.code;
    });
    return Packed({{code, result.counts}, out.str(), err.str()});
  };
  tasks.ended = [&](std::size_t i, TaskEnding ending) {
    output.Take(i, ending.crash ? Failure("the process that refreshed it died (" + *ending.crash +
                                          "); the workbook is either unchanged or completely refreshed.")
                                : Unpacked(ending.report));
  };
  return output.Finish(RunInWorkers(tasks, processes));
}

std::string CountsText(const RefreshCounts& counts) {
  std::string text = Counted(counts.refreshed, "chart") + " refreshed";
  if (counts.unavailable > 0) text += ", " + std::to_string(counts.unavailable) + " unavailable";
  return text;
}

}  // namespace plotsmith::cli
