#include "cli/Session.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "cli/ChartState.h"
#include "cli/Failures.h"
#include "cli/check/TableCheck.h"
#include "cli/check/Words.h"
#include "common/Documents.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "controller/System.h"
#include "dom/Dom.h"
#include "forms/UnattendedView.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Utf8Path.h"
#include "runtime/Variant.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

CommandError CantRead(const std::string& path, const std::string& reason) {
  return CommandError(exit_code::kFile, "can't read \"" + path + "\": " + reason + ".");
}

CommandError CantSave(const std::string& path, const std::string& reason) {
  return CommandError(exit_code::kFile, "can't save \"" + path + "\": " + reason + "; nothing was changed.");
}

/// Returns the lock file with which another program shows that it has the workbook open, or "".
std::string LockOf(const fs::path& book) {
  const std::string file = runtime::Utf8Of(book.filename());
  for (const std::string& name : {".~lock." + file + "#", "~$" + file}) {
    std::error_code ignored;
    const fs::path lock = book.parent_path() / runtime::PathOf(name);
    if (fs::exists(lock, ignored)) return runtime::Utf8Of(lock);
  }
  return {};
}

/// Returns true if the workbook has a table with exactly that id, or a chart that uses it.
bool IsTableKnown(const std::string& id) {
  const auto tables = LoadedTableIds();
  if (std::find(tables.begin(), tables.end(), id) != tables.end()) return true;
  return std::any_of(colCharts->begin(), colCharts->end(), [&](const dom::IXMLDOMDocument2& document) {
    const auto chart = document.selectSingleNode("chart");
    return GetAttributeText(chart, "table-id") == id ||
           GetAttributeText(chart, "strategic-bucket-table-id") == id;
  });
}

}  // namespace

bool IsStandardOutput(const std::optional<std::string>& output) { return output == "-"; }

void RequireTableId(const std::string& id) {
  if (id.empty()) throw CommandError(exit_code::kUsage, "--table needs the id of a table.");
}

std::string VersionText(double version) {
  const std::string text = runtime::NumberText(version);
  return text.find('.') == std::string::npos ? text + ".0" : text;
}

RunRefused::RunRefused(std::size_t lost)
    : CommandError(exit_code::kFile, "nothing was changed, because " +
                                         (lost > 0 ? Counted(lost, "definition") + " would be lost"
                                                   : "charts could be confused with each other") +
                                         "; correct this, or use --drop-broken."),
      lost_(lost) {}

Session::Session(std::string path, const GlobalOptions& options, const Streams& streams)
    : Session(std::move(path), options, streams, std::make_shared<ConsoleDesktop>(),
              std::make_shared<forms::UnattendedView>()) {}

Session::Session(std::string path, const GlobalOptions& options, const Streams& streams,
                 std::shared_ptr<ConsoleDesktop> desktop, std::shared_ptr<forms::View> view)
    : path_(std::move(path)),
      options_(options),
      streams_(streams),
      desktop_(std::move(desktop)),
      host_(xlsx::Application::Create(VersionText(options.hostVersion))) {
  StartSystem(desktop_, std::move(view));
  if (options.journal) {
    host_->Journal().SetSink(
        [this](std::string_view line) { (bookToOut_ ? streams_.err : streams_.out) << line << '\n'; });
  }
  host_->DefineMacro(kRefreshStartedMacro, [this](const auto& arguments) { ChartStarted(arguments); });
  if (streams.terminal) {
    host_->DefineMacro(kRefreshCompleteMacro, [this](const auto&) { ClearProgress(); });
  }
  try {
    host_->Open(path_);
  } catch (const xlsx::PackageError& e) {
    throw CantRead(path_, e.what());
  }
}

Session::~Session() { StopSystem(); }

void Session::UseBook() const {
  oApplication = host_;
  oWorkbook = host_->ActiveWorkbook();
}

void Session::LoadTables() {
  UseBook();
  RetrieveTableDefinitions();
}

void Session::LoadTablesAndCharts() {
  LoadTables();
  LoadCharts();
}

void Session::LoadCharts() {
  if (SheetExists(kDefinitionsSheet)) {
    RetrieveChartDefinitions();
  } else {
    colCharts = runtime::MakeRef<DocumentCollection>();  // Loading the definitions would create the sheet.
  }
}

void Session::CheckWritable(const std::optional<std::string>& output) {
  if (output && output->empty()) throw CommandError(exit_code::kUsage, "-o needs the name of a file.");
  bookToOut_ = IsStandardOutput(output);
  if (!bookToOut_) {
    CheckFree(output.value_or(path_));
  } else if (streams_.outTerminal) {
    throw CommandError(exit_code::kUsage,
                       "a workbook isn't written to a terminal; redirect the output, or name a file.");
  }
}

void Session::CheckFree(const std::string& target) const {
  const std::string lock = LockOf(fs::absolute(runtime::PathOf(target)));
  if (!lock.empty() && !options_.force) {
    throw CommandError(exit_code::kFile, "\"" + target + "\" is open in another program (\"" + lock +
                                             "\" says so); close it there, or use --force.");
  }
  try {
    Book().CheckTarget(target);
  } catch (const xlsx::PackageError& e) {
    throw CantSave(target, e.what());
  }
}

void Session::CheckTable(const std::string& id) const {
  if (!colTables || !colCharts || Book().Damage() || IsTableKnown(id)) return;
  throw NotInBook(path_, "table", id, LoadedTableIds());
}

void Session::Guard(const std::function<void()>& check) const {
  struct Restored {
    runtime::Ref<excel::Application> application = oApplication;
    runtime::Ref<excel::Workbook> workbook = oWorkbook;
    ~Restored() {
      oApplication = application;
      oWorkbook = workbook;
    }
  } restored;
  UseBook();
  try {
    check();
  } catch (const runtime::RuntimeError&) {
    CheckDamage();  // This reports damage.
    throw;
  }
  CheckDamage();
}

void Session::CheckBeforeRun(DefinitionsAre definitions) {
  Guard([&] { check_.emplace(Book(), definitions); });
  if (!check_ || options_.dropBroken) return;
  const RunRefusals refusals = check_->Refusals();
  if (!ReportFindings(refusals.lines)) return;
  throw RunRefused(refusals.lost);
}

bool Session::ReportFindings(const std::vector<std::string>& lines) const {
  for (const std::string& line : lines) streams_.err << "plotsmith: " << line << '\n';
  return !lines.empty();
}

void Session::ChartStarted(const std::vector<runtime::Variant>& arguments) {
  // A call without arguments marks the beginning of the run.
  if (arguments.empty() || !colCharts) return;
  const std::string id = runtime::CStr(arguments[0]);
  started_.push_back({colCharts->Item(id).selectSingleNode("chart"), colChartObjects->Item(id)});
  if (check_) check_->ChartStarted(id);
  if (!streams_.terminal) return;
  const std::string line = "Refreshing chart " + std::to_string(started_.size()) + " ...";
  streams_.err << '\r' << line << std::flush;
  progressWidth_ = line.size();
}

RefreshCounts Session::Counts() const {
  RefreshCounts counts;
  for (const StartedChart& chart : started_) {
    ++(StateOf(chart.definition, chart.object) == ChartState::kOk ? counts.refreshed : counts.unavailable);
  }
  return counts;
}

std::vector<DefinedChart> Session::StartedCharts() const {
  std::vector<DefinedChart> charts;
  for (const StartedChart& chart : started_) {
    charts.push_back(
        {GetAttributeText(chart.definition, "id"), GetAttributeText(chart.definition, "name"), chart.object});
  }
  return charts;
}

void Session::ClearProgress() {
  if (progressWidth_ > 0) streams_.err << '\r' << std::string(progressWidth_, ' ') << '\r' << std::flush;
  progressWidth_ = 0;
}

/// Damage of the workbook replaces all messages that result from it.
void Session::CheckDamage() const {
  if (const auto& damage = host_->Book().Damage()) throw CantRead(path_, *damage);
  if (runtime::memoryRanOut) throw CantRead(path_, "there is not enough memory for it");
}

int Session::ReportMessages() {
  ClearProgress();
  for (const std::string& message : desktop_->Messages()) streams_.err << message << '\n';
  return desktop_->Messages().empty() ? exit_code::kDone : exit_code::kDoneWithMessages;
}

std::vector<std::string> Session::EndRun() {
  std::vector<std::string> findings;
  Guard([&] {
    if (check_) findings = check_->Finish();
  });
  FlushOutput(streams_);  // Nothing is changed yet.
  return findings;
}

int Session::ReportRun(const std::vector<std::string>& findings) {
  const int code = ReportMessages();
  return ReportFindings(findings) ? exit_code::kDoneWithMessages : code;
}

int Session::Discard() { return ReportRun(EndRun()); }

int Session::Save(const std::optional<std::string>& output) {
  const std::vector<std::string> findings = EndRun();
  if (output || Book().Changed()) {
    try {
      WriteBook(output);
    } catch (const xlsx::PackageError& e) {
      ReportMessages();
      throw CantSave(output.value_or(path_), e.what());
    }
  }
  return ReportRun(findings);
}

void Session::WriteBook(const std::optional<std::string>& output) {
  if (!IsStandardOutput(output)) {
    Book().Save(output.value_or(path_));
    return;
  }
  Book().Save(streams_.out);
  FlushOutput(streams_);
}

int Session::Finish() {
  CheckDamage();
  return ReportMessages();
}

}  // namespace plotsmith::cli
