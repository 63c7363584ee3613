#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/check/DefinitionCheck.h"
#include "cli/check/Finding.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// What a run does to the definitions of the charts that it builds.
enum class DefinitionsAre {
  kTaken,    ///< it takes them as the rows have them
  kRenamed,  ///< the names of columns change, and axis titles with them
  kEdited    ///< pages and options change them
};

/// What forbids a run.
struct RunRefusals {
  std::vector<std::string> lines;  ///< each with its place
  std::size_t lost = 0;            ///< definitions that the run would lose
};

/// The look at a workbook around a run that writes it: at the rows of definitions before, at each chart when
/// its build begins, and at what came out. So a person hears of everything that the run does to their work.
class RunLook {
 public:
  /// Looks at the rows. It wants `oWorkbook` set, and `book`, which must outlive the look, is that workbook.
  RunLook(xlsx::Workbook& book, DefinitionsAre definitions);

  /// Rows that the run would lose. A run that makes, changes or deletes charts is also forbidden where charts
  /// could be taken for others.
  RunRefusals Refusals() const;
  /// The build of a chart begins. The tables and definitions are loaded.
  void ChartStarted(const std::string& id);
  /// What there is to say once the run is over, a line each with its place and the charts it is about.
  std::vector<std::string> Finish();

 private:
  /// A finding, and how a line calls the chart that it is about; "" for none.
  struct ChartFinding {
    Finding finding;
    std::string chart;
  };

  const CheckedDefinition* FindRow(const std::string& id) const;
  /// Compares the definitions of the rows with what a load has read back from their charts, once in a run.
  void CompareStored();
  /// Whether there is nothing to say, so that the rows need not be looked at again.
  bool IsFine() const;
  /// What was found before the run about rows that the run took off the sheet.
  void CollectLost(std::vector<ChartFinding>& collected) const;
  /// What was found about a row that is still there. Places are as they are after the run.
  void CollectKept(const CheckedDefinition& row, std::vector<ChartFinding>& collected) const;
  /// A line for each finding; what several charts have in common is one line.
  static std::vector<std::string> Lines(const std::vector<ChartFinding>& collected);

  xlsx::Workbook& book_;
  DefinitionsAre definitions_;
  std::vector<CheckedDefinition> rows_;          ///< before the run
  Findings strayCharts_;                         ///< before the run
  std::map<std::string, Findings> started_;      ///< about each chart whose build began, by id
  std::map<std::string, Findings> differences_;  ///< where a chart counts and not its definition, by id
  bool compared_ = false;
  /// The tables of the bubble charts with a drawn legend that were drawn, by the charts' ids.
  std::map<std::string, dom::IXMLDOMDocument2> bubbles_;
};

}  // namespace plotsmith::cli
