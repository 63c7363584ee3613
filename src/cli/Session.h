#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Command.h"
#include "cli/ConsoleDesktop.h"
#include "cli/Streams.h"
#include "cli/check/RunLook.h"
#include "dom/Dom.h"
#include "forms/ModalLoop.h"
#include "host/excel/Excel.h"
#include "runtime/Variant.h"
#include "xlsx/Application.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// What became of the charts of a refresh.
struct RefreshCounts {
  std::size_t refreshed = 0;
  std::size_t unavailable = 0;  ///< they could not be drawn
};

/// One workbook, open in the embedded host, with the system set up to work on it.
class Session {
 public:
  /// With forms that are closed as soon as they wait. Throws a CommandError if the workbook can't be read.
  Session(std::string path, const GlobalOptions& options, const Streams& streams);
  /// With forms on a view of the caller's, and message boxes on its desktop.
  Session(std::string path, const GlobalOptions& options, const Streams& streams,
          std::shared_ptr<ConsoleDesktop> desktop, std::shared_ptr<forms::View> view);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  std::shared_ptr<xlsx::Application> Host() const { return host_; }
  xlsx::Workbook& Book() const { return host_->Book(); }

  /// Discovers the tables.
  void LoadTables();
  /// Discovers the tables and loads the definitions, for commands that only read.
  void LoadTablesAndCharts();
  /// Loads the definitions for commands that need no tables, which take long to find in a large workbook. The
  /// definitions say that their tables are missing.
  void LoadChartsOnly();
  /// Loads the definitions and reads their charts back. It wants the tables loaded.
  void LoadCharts();
  /// Refuses, before any work is done, to write where another program has the workbook open, or a file that
  /// the workbook can't be. If `output` is the standard output, the journal goes to `err` from here on.
  void CheckWritable(const std::optional<std::string>& output);
  /// Looks at the definitions before a run that writes. A CommandError, after a line for each on `err`, where
  /// the run would lose some, unless the options allow it. What else is found is said after a save.
  void LookBeforeRun(DefinitionsAre definitions);
  /// After the system has worked: refuses an id of which the workbook has neither a table nor a chart.
  void CheckTable(const std::string& id) const;
  /// How many charts the system has begun to build.
  int ChartsStarted() const { return static_cast<int>(started_.size()); }
  /// What became of those.
  RefreshCounts Counts() const;
  /// Those charts, with their ids; Nothing for one that is on no sheet.
  std::vector<std::pair<std::string, excel::Ref<excel::Chart>>> StartedCharts() const;
  /// Whether the system had anything to say.
  bool HasMessages() const { return !desktop_->Messages().empty(); }
  /// Ends the work: saves to `output`, or, if something changed, to where the workbook came from.
  int Save(const std::optional<std::string>& output);
  /// Ends the work of a command that only reads.
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
  /// Runs a look at the workbook with the system's variables set to it, and puts them back.
  void Look(const std::function<void()>& look) const;
  /// Says what the look has found about the run; false if there is nothing.
  bool ReportFindings(const std::vector<std::string>& lines) const;

  std::string path_;
  GlobalOptions options_;
  Streams streams_;
  std::shared_ptr<ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  std::optional<RunLook> look_;
  std::vector<StartedChart> started_;
  std::size_t progressWidth_ = 0;
  bool bookToOut_ = false;  ///< the workbook goes to the standard output, and so nothing else may
};

/// The name by which the command introduces itself to the system.
inline constexpr const char* kHostName = "plotsmith";

/// Whether the name of an output is "-", the standard output.
bool IsStandardOutput(const std::optional<std::string>& output);

/// Refuses a table's id that is empty, which no table has.
void RequireTableId(const std::string& id);

/// The host's version as Excel would tell it, "16.0".
std::string VersionText(double version);

}  // namespace plotsmith::cli
