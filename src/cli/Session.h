#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ChartLookup.h"
#include "cli/Command.h"
#include "cli/ConsoleDesktop.h"
#include "cli/Streams.h"
#include "cli/check/RunCheck.h"
#include "dom/Dom.h"
#include "forms/ModalLoop.h"
#include "host/excel/Excel.h"
#include "runtime/Variant.h"
#include "xlsx/Application.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// The results of a refresh.
struct RefreshCounts {
  std::size_t refreshed = 0;    ///< Charts that were drawn.
  std::size_t unavailable = 0;  ///< Charts that couldn't be drawn.
};

/// The error of Session::CheckBeforeRun for a run that would lose definitions, or whose charts could be
/// confused with each other. The session has printed the findings.
class RunRefused : public CommandError {
 public:
  /// Makes the error of a run that would lose `lost` definitions.
  explicit RunRefused(std::size_t lost);
  /// The number of definitions that the run would lose. If it is 0, charts could be confused.
  std::size_t Lost() const { return lost_; }

 private:
  std::size_t lost_;
};

/// A workbook that is open in the embedded host, with the system set up to work on it.
class Session {
 public:
  /// Opens a workbook, with forms that close as soon as they wait for the user. Throws CommandError if the
  /// workbook can't be read.
  Session(std::string path, const GlobalOptions& options, const Streams& streams);
  /// Opens a workbook, with the forms in the caller's view and the message boxes on its desktop.
  Session(std::string path, const GlobalOptions& options, const Streams& streams,
          std::shared_ptr<ConsoleDesktop> desktop, std::shared_ptr<forms::View> view);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The embedded host.
  std::shared_ptr<xlsx::Application> Host() const { return host_; }
  /// The open workbook.
  xlsx::Workbook& Book() const { return host_->Book(); }

  /// Sets the system's variables to the workbook. Doesn't find its tables, because that takes long in a large
  /// workbook.
  void UseBook() const;
  /// Finds the tables.
  void LoadTables();
  /// Finds the tables and loads the definitions, for commands that only read.
  void LoadTablesAndCharts();
  /// Loads the definitions and reads their charts back. The tables must be loaded.
  void LoadCharts();
  /// Throws CommandError, before any work is done, if another program has the workbook open, or if the output
  /// can't be a workbook. If `output` is standard output, the journal goes to `err` from here on.
  void CheckWritable(const std::optional<std::string>& output);
  /// Checks the definitions before a run that writes. If the run would lose definitions, prints a line for
  /// each on `err` and throws RunRefused, unless the options allow it. Other findings are reported after the
  /// save. Throws another CommandError if the workbook is damaged.
  void CheckBeforeRun(DefinitionsAre definitions);
  /// Checks a table id after the run. Throws CommandError if the workbook has neither a table nor a chart
  /// with it.
  void CheckTable(const std::string& id) const;
  /// The number of charts that the system has begun to build.
  int ChartsStarted() const { return static_cast<int>(started_.size()); }
  /// The results for these charts.
  RefreshCounts Counts() const;
  /// Returns these charts, in the order of their builds.
  std::vector<DefinedChart> StartedCharts() const;
  /// Returns true if the system showed a message.
  bool HasMessages() const { return !desktop_->Messages().empty(); }
  /// Ends the work and saves to `output`; without it, saves to the original file if something has changed.
  /// Returns an exit code.
  int Save(const std::optional<std::string>& output);
  /// Ends a run without writing the workbook, and reports the same as Save. Returns an exit code.
  int Discard();
  /// Ends the work of a command that only reads. Returns an exit code.
  int Finish();

 private:
  /// A chart that the system has begun to build.
  struct StartedChart {
    dom::IXMLDOMElement definition;
    excel::Ref<excel::Chart> object;
  };

  void CheckFree(const std::string& target) const;
  void WriteBook(const std::optional<std::string>& output);
  void ChartStarted(const std::vector<runtime::Variant>& arguments);
  void ClearProgress();
  void CheckDamage() const;
  int ReportMessages();
  /// Calls a check with the system's variables set to the workbook, and restores them.
  void Guard(const std::function<void()>& check) const;
  /// Prints the findings of the checks. Returns false if there are none.
  bool ReportFindings(const std::vector<std::string>& lines) const;
  /// Ends the checks of a run, before anything is written, and returns their findings.
  std::vector<std::string> EndRun();
  /// Prints the messages and the findings of a run. Returns an exit code.
  int ReportRun(const std::vector<std::string>& findings);

  std::string path_;
  GlobalOptions options_;
  Streams streams_;
  std::shared_ptr<ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  std::optional<RunCheck> check_;
  std::vector<StartedChart> started_;
  std::size_t progressWidth_ = 0;
  bool bookToOut_ = false;  ///< Whether the workbook goes to standard output, which then takes nothing else.
};

/// The name of the command as a host add-in.
inline constexpr const char* kHostName = "plotsmith";

/// Returns true if the name of an output is "-" for standard output.
bool IsStandardOutput(const std::optional<std::string>& output);

/// Throws CommandError if a table id is empty, because no table has an empty id.
void RequireTableId(const std::string& id);

/// Returns the host's version in Excel's format, such as "16.0".
std::string VersionText(double version);

}  // namespace plotsmith::cli
