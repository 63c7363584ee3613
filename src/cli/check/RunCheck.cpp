#include "cli/check/RunCheck.h"

#include <algorithm>
#include <utility>

#include "cli/check/BubbleLabels.h"
#include "cli/check/ReadBackCheck.h"
#include "cli/check/SourceCheck.h"
#include "cli/check/Words.h"
#include "common/Documents.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"

namespace plotsmith::cli {
namespace {

using dom::IXMLDOMElement;

constexpr const char* kBubble = "bubble";

/// Returns the name of a chart for messages, or its id if it has no name; "" for a row that has neither.
std::string Called(const std::string& id, const std::string& name) {
  return name.empty() ? id : "'" + OneLine(name) + "'";
}

std::string Line(const std::string& place, std::vector<std::string> charts, const std::string& sentence) {
  std::erase(charts, "");
  if (charts.empty()) return place + ": " + sentence;
  return place + (charts.size() == 1 ? " (chart " : " (charts ") + Listed(charts) + "): " + sentence;
}

/// Returns true if a finding prevents drawing, because a table or a column is missing.
bool ForbidsDrawing(const Finding& finding) {
  return finding.kind == FindingKind::kTable ||
         (finding.kind == FindingKind::kColumn && finding.place.empty());
}

}  // namespace

RunCheck::RunCheck(xlsx::Workbook& book, DefinitionsAre definitions)
    : book_(book),
      definitions_(definitions),
      rows_(CheckRows(book)),
      strayCharts_(CheckStrayCharts(book, rows_)) {}

RunRefusals RunCheck::Refusals() const {
  RunRefusals refusals;
  const auto refuses = [&](const Finding& finding) {
    return finding.severity == Severity::kRefuses ||
           (finding.severity == Severity::kBlocksEdits && definitions_ == DefinitionsAre::kEdited);
  };
  for (const CheckedDefinition& row : rows_) {
    for (const Finding& finding : row.findings) {
      if (!refuses(finding)) continue;
      refusals.lines.push_back(Line(finding.place, {Called(row.id, row.name)}, finding.sentence));
      if (LosesRow(finding)) ++refusals.lost;
    }
  }
  for (const Finding& stray : strayCharts_) {
    if (refuses(stray)) refusals.lines.push_back(Line(stray.place, {}, stray.sentence));
  }
  return refusals;
}

const CheckedDefinition* RunCheck::FindRow(const std::string& id) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const CheckedDefinition& row) {
    return row.id == id && !row.IsLost() && !row.IsUnread();
  });
  return found == rows_.end() ? nullptr : &*found;
}

void RunCheck::ChartStarted(const std::string& id) {
  const auto chart = colCharts->Item(id).selectSingleNode("chart");
  Findings& findings = started_[id];
  findings = CheckSources(book_, chart, named_);
  CompareStored();
  if (GetAttributeText(chart, "type") == kBubble &&
      std::none_of(findings.begin(), findings.end(), ForbidsDrawing)) {
    bubbles_.insert_or_assign(id, colTables->Item(GetAttributeText(chart, "table-id")));
  }
}

void RunCheck::CompareStored() {
  if (definitions_ == DefinitionsAre::kEdited || !colCharts || std::exchange(compared_, true)) return;
  differences_ = CheckReadBack(
      book_, rows_, definitions_ == DefinitionsAre::kRenamed ? AxisTitles::kRenamed : AxisTitles::kCompared);
}

bool RunCheck::IsFine() const {
  const auto isFine = [](const auto& findings) { return findings.empty(); };
  return bubbles_.empty() && differences_.empty() && strayCharts_.empty() &&
         std::all_of(rows_.begin(), rows_.end(), [&](const auto& row) { return isFine(row.findings); }) &&
         std::all_of(started_.begin(), started_.end(),
                     [&](const auto& chart) { return isFine(chart.second); });
}

void RunCheck::CollectLost(std::vector<ChartFinding>& collected) const {
  for (const CheckedDefinition& row : rows_) {
    for (const Finding& finding : row.findings) {
      if (LosesRow(finding)) collected.push_back({finding, Called(row.id, row.name)});
    }
  }
}

void RunCheck::CollectKept(const CheckedDefinition& row, std::vector<ChartFinding>& collected) const {
  const auto collect = [&](Finding finding) {
    if (finding.place.empty()) finding.place = row.place;
    collected.push_back({std::move(finding), Called(row.id, row.name)});
  };
  if (row.IsUnread()) {
    collect(row.findings.front());
    return;
  }
  // All definitions are stored, including those of charts that aren't built.
  if (const auto differences = differences_.find(row.id); differences != differences_.end()) {
    for (Finding finding : differences->second) {
      finding.place = row.place;
      collect(std::move(finding));
    }
  }
  const auto started = started_.find(row.id);
  if (started == started_.end()) return;
  // A load removes unknown settings from the definition of a drawn chart. Settings that a page has changed no
  // longer matter.
  const CheckedDefinition* const before = definitions_ == DefinitionsAre::kEdited ? &row : FindRow(row.id);
  if (before != nullptr) {
    for (Finding finding : before->findings) {
      finding.place = row.place;  // Rows above may have been removed.
      collect(std::move(finding));
    }
  }
  for (const Finding& finding : started->second) collect(finding);
  if (const auto table = bubbles_.find(row.id); table != bubbles_.end()) {
    for (Finding& finding : CheckBubbleLabels(book_, row.document.selectSingleNode("chart"),
                                              table->second.selectSingleNode("table"))) {
      collect(std::move(finding));
    }
  }
}

std::vector<std::string> RunCheck::Lines(const std::vector<ChartFinding>& collected) {
  std::vector<std::pair<const Finding*, std::vector<std::string>>> groups;
  for (const ChartFinding& each : collected) {
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& other) {
      return other.first->place == each.finding.place && other.first->sentence == each.finding.sentence;
    });
    if (group == groups.end())
      groups.push_back({&each.finding, {each.chart}});
    else
      group->second.push_back(each.chart);
  }
  std::vector<std::string> lines;
  for (const auto& [finding, charts] : groups)
    lines.push_back(Line(finding->place, charts, SentenceAfterRun(*finding)));
  return lines;
}

std::vector<std::string> RunCheck::Finish() {
  CompareStored();
  if (IsFine()) return {};
  std::vector<ChartFinding> collected;
  CollectLost(collected);
  const std::vector<CheckedDefinition> rows = CheckRows(book_);
  for (const CheckedDefinition& row : rows) CollectKept(row, collected);
  for (Finding& stray : CheckStrayCharts(book_, rows)) collected.push_back({std::move(stray), ""});
  return Lines(collected);
}

}  // namespace plotsmith::cli
