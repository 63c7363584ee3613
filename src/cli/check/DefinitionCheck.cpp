#include "cli/check/DefinitionCheck.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "cli/check/ChartMarkers.h"
#include "cli/check/DefinitionFormat.h"
#include "cli/check/SourceCheck.h"
#include "cli/check/Words.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "metadata/NewChart.h"
#include "runtime/Strings.h"
#include "xlsx/Worksheet.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::cli {
namespace {

/// Checks the rows of the sheet.
class RowCheck {
 public:
  RowCheck(xlsx::Workbook& book, xlsx::Worksheet& sheet) : book_(book), sheet_(sheet), markers_(book) {}

  std::vector<CheckedDefinition> Run() {
    CheckHead();
    std::int32_t expected = kFirstDefinitionRow;
    for (std::int32_t row = kFirstDefinitionRow - 1; (row = sheet_.NextRowAt(row, 1)) != 0;) {
      const std::string text = TextAt(row);
      if (text.empty()) continue;
      CheckedDefinition& definition = Add(row);
      CheckRow(definition, text);
      if (row == expected) {
        ++expected;
      } else {
        MarkUnread(definition, DefinitionPlace(expected) + " is blank and ends the list");
      }
    }
    return std::move(definitions_);
  }

 private:
  std::string TextAt(std::int32_t row) { return runtime::CStr(GetCellValue(sheet_, row, 1, cell::kString)); }
  CheckedDefinition& Add(std::int32_t row) {
    CheckedDefinition& definition = definitions_.emplace_back();
    definition.row = row;
    definition.place = DefinitionPlace(row);
    return definition;
  }
  static void Report(CheckedDefinition& definition, FindingKind kind, std::string sentence,
                     Severity severity = Severity::kReports) {
    definition.findings.push_back({definition.place, kind, std::move(sentence), severity});
  }
  /// Marks a row that is never read, and therefore never removed.
  static void MarkUnread(CheckedDefinition& definition, const std::string& reason) {
    for (Finding& finding : definition.findings) finding.severity = Severity::kReports;
    definition.findings.insert(
        definition.findings.begin(),
        {definition.place, FindingKind::kUnread, "This definition is never read, because " + reason + ".",
         Severity::kBlocksEdits});
  }

  /// Checks the first row, which is reserved for the version text.
  void CheckHead() {
    if (TextAt(1).starts_with('<'))
      MarkUnread(Add(1), "the list begins in " + DefinitionPlace(kFirstDefinitionRow));
  }

  void CheckRow(CheckedDefinition& definition, const std::string& text) {
    auto document = NewXMLDocument();
    if (!document.loadXML(text)) {
      const dom::IXMLDOMParseError& error = document.parseError();
      Report(definition, FindingKind::kXml,
             "The text is not well-formed XML (" + error.reason + " in line " + std::to_string(error.line) +
                 ", character " + std::to_string(error.linepos) + ").",
             Severity::kRefuses);
      return;
    }
    const auto chart = document.selectSingleNode("chart");
    if (!chart) {
      Report(definition, FindingKind::kXml,
             "The root element is " + Quoted(document.documentElement().tagName()) + " and not 'chart'.",
             Severity::kRefuses);
      return;
    }
    definition.id = GetAttributeText(chart, "id");
    definition.name = GetAttributeText(chart, "name");
    definition.type = GetAttributeText(chart, "type");
    definition.table = GetAttributeText(chart, "table-id");
    definition.document = document;
    CheckChart(definition);
    Append(definition.findings, CheckFormat(chart, definition.place));
  }

  /// Checks the connection to the chart: an id that no earlier row has, and a chart with this id.
  void CheckChart(CheckedDefinition& definition) {
    if (definition.id.empty()) {
      Report(definition, FindingKind::kId, "The definition has no 'id'.", Severity::kRefuses);
      return;
    }
    const auto shape = markers_.ShapeOf(definition.id);
    definition.chartSheet = markers_.SheetOf(definition.id);
    if (definition.chartSheet.empty()) {
      const bool isGone = !markers_.IsGrouped(definition.id) && WasDrawn(definition.id);
      Report(definition, FindingKind::kChart, markers_.Absence(definition.id),
             isGone ? Severity::kRemoves : Severity::kRefuses);
      return;
    }
    const auto [first, isNew] = rowsById_.emplace(runtime::UCase(definition.id), definition.place);
    if (!isNew) {
      Report(definition, FindingKind::kId,
             "The id " + Quoted(definition.id) + " is already used by " + first->second + ".",
             Severity::kRefuses);
    } else if (shape) {
      definition.chartPart = shape->ChartPartName();
      if (!IsReadable(*shape)) {
        Report(definition, FindingKind::kChart, "The chart can't be read.", Severity::kRefuses);
      } else if (markers_.IsHiddenByName(definition.id)) {
        Report(definition, FindingKind::kChart,
               "Another chart on the sheet " + Quoted(definition.chartSheet) + " has the same name, " +
                   Quoted(shape->Name()) +
                   ", and would be drawn in its place; rename one of them in the "
                   "selection pane.",
               Severity::kRefuses);
      }
    }
  }

  /// A chart that was identified by its data has already been read.
  static bool IsReadable(xlsx::SheetShape& shape) {
    return ValueOr(false, [&] {
      shape.Chart()->SeriesCollection()->Count();
      return true;
    });
  }

  /// Returns true if the data sheet has a block with the id.
  bool WasDrawn(const std::string& id) {
    if (!drawn_) drawn_ = ReadDrawn();
    return drawn_->contains(id);
  }
  std::set<std::string> ReadDrawn() {
    std::set<std::string> ids;
    const auto sheet = book_.FindWorksheet(kDataSheet);
    if (!sheet) return ids;
    std::string scratch;
    for (std::int32_t row = 1; row != 0; row = sheet->NextRowAt(row, data_column::kId)) {
      ids.emplace(GetCellText(*sheet, row, data_column::kId, scratch));
    }
    return ids;
  }

  xlsx::Workbook& book_;
  xlsx::Worksheet& sheet_;
  ChartMarkers markers_;
  std::map<std::string, std::string> rowsById_;  ///< The cells of definitions by id in upper case.
  std::optional<std::set<std::string>> drawn_;   ///< The ids on the data sheet; empty until they are needed.
  std::vector<CheckedDefinition> definitions_;
};

}  // namespace

bool CheckedDefinition::IsLost() const { return std::any_of(findings.begin(), findings.end(), LosesRow); }

bool CheckedDefinition::IsUnread() const {
  return !findings.empty() && findings.front().kind == FindingKind::kUnread;
}

std::string DefinitionPlace(std::int32_t row) { return CellText(kDefinitionsSheet, row, 1); }

Findings CheckStrayCharts(xlsx::Workbook& book, const std::vector<CheckedDefinition>& rows) {
  // If a row is broken, the chart without a definition most likely belongs to that row.
  const bool isAnyLost = std::any_of(rows.begin(), rows.end(), std::mem_fn(&CheckedDefinition::IsLost));
  const auto isDefined = [&](const std::string& id) {
    return isAnyLost ||
           std::any_of(rows.begin(), rows.end(), [&](const CheckedDefinition& row) { return row.id == id; });
  };
  Findings findings;
  const auto report = [&](const std::string& sheet, const std::string& sentence) {
    findings.push_back({xlsx::QuotedSheetName(sheet), FindingKind::kChart, sentence, Severity::kBlocksEdits});
  };
  for (const auto& [id, sheets] : ChartMarkers(book).SheetsByText()) {
    if (ChartNumber(id).empty()) continue;
    if (!isDefined(id)) {
      report(sheets.front(), "A chart here has the alternative text " + Quoted(id) +
                                 ", but no definition has this id; a new chart could get the same id. "
                                 "Delete the chart, or clear its alternative text.");
    } else if (sheets.size() > 1) {
      report(sheets[1], "A second chart here has the alternative text " + Quoted(id) +
                            ", and only the first one, on the sheet " + Quoted(sheets[0]) +
                            ", is refreshed. Delete the second chart, or clear its alternative text.");
    }
  }
  return findings;
}

std::vector<CheckedDefinition> CheckRows(xlsx::Workbook& book) {
  const auto sheet = book.FindWorksheet(kDefinitionsSheet);
  if (!sheet) return {};
  return RowCheck(book, *sheet).Run();
}

std::vector<CheckedDefinition> CheckDefinitions(xlsx::Workbook& book) {
  std::vector<CheckedDefinition> definitions = CheckRows(book);
  NamedColumns named;
  for (CheckedDefinition& definition : definitions) {
    if (!definition.document) continue;
    Append(definition.findings,
           CheckSource(book, definition.document.selectSingleNode("chart"), definition.place, named));
  }
  return definitions;
}

}  // namespace plotsmith::cli
