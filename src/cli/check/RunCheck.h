#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/check/DefinitionCheck.h"
#include "cli/check/Finding.h"
#include "cli/check/NamedColumns.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// The effect of a run on the definitions of the charts that it builds.
enum class DefinitionsAre {
  kUsed,     ///< The run uses them as stored.
  kRenamed,  ///< The run renames columns, and axis titles with them.
  kEdited    ///< Pages and options change them.
};

/// The reasons that forbid a run.
struct RunRefusals {
  std::vector<std::string> lines;  ///< The messages, each with its place.
  std::size_t lost = 0;            ///< The number of definitions that the run would lose.
};

/// Checks a workbook before, during and after a run that writes it: the rows of definitions before, each
/// chart when its build begins, and the result. This way the user learns of everything that the run does to
/// their work.
class RunCheck {
 public:
  /// Checks the rows. `oWorkbook` must be set, and `book` is that workbook. `book` must outlive this object.
  RunCheck(xlsx::Workbook& book, DefinitionsAre definitions);

  /// Returns the rows that the run would lose. A run that makes, changes or deletes charts is also forbidden
  /// if ids are ambiguous.
  RunRefusals Refusals() const;
  /// Called when the build of a chart begins. The tables and definitions are loaded.
  void ChartStarted(const std::string& id);
  /// Returns the messages after the run, one line each, with the place and the charts.
  std::vector<std::string> Finish();

 private:
  /// A finding, and the name of its chart in messages; "" for none.
  struct ChartFinding {
    Finding finding;
    std::string chart;
  };

  const CheckedDefinition* FindRow(const std::string& id) const;
  /// Compares the definitions in the rows with those that a load has read back from the charts, once per run.
  void CompareStored();
  /// Returns true if there are no messages, so that the rows need not be checked again.
  bool IsFine() const;
  /// Adds the findings about rows that the run removed.
  void CollectLost(std::vector<ChartFinding>& collected) const;
  /// Adds the findings about a row that still exists, with its place after the run.
  void CollectKept(const CheckedDefinition& row, std::vector<ChartFinding>& collected) const;
  /// Returns a line for each finding. Equal findings of several charts share a line.
  static std::vector<std::string> Lines(const std::vector<ChartFinding>& collected);

  xlsx::Workbook& book_;
  DefinitionsAre definitions_;
  std::vector<CheckedDefinition> rows_;      ///< Before the run.
  Findings strayCharts_;                     ///< Before the run.
  std::map<std::string, Findings> started_;  ///< Findings about each chart whose build began, by id.
  NamedColumns named_;
  std::map<std::string, Findings> differences_;  ///< Differences in which the chart takes precedence, by id.
  bool compared_ = false;
  /// The tables of the bubble charts that were drawn with a legend, by chart id.
  std::map<std::string, dom::IXMLDOMDocument2> bubbles_;
};

}  // namespace plotsmith::cli
