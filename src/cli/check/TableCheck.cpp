#include "cli/check/TableCheck.h"

#include <map>
#include <memory>
#include <optional>
#include <set>

#include "cli/check/ColumnCells.h"
#include "cli/check/DefinitionFormat.h"
#include "cli/check/Words.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "metadata/TableDefinitions.h"
#include "runtime/Strings.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kHowToCalculate = "calculate and save the workbook in a spreadsheet program.";

/// Returns the finding that explains why a defined name refers to no table.
Finding NoTable(const std::string& name) {
  const std::string start = "The name " + Quoted(name) + " doesn't define a table, ";
  const auto defined = oWorkbook->Names()->Item(name);
  const std::int32_t rows =
      ValueOr(std::int32_t{0}, [&] { return defined->RefersToRange()->Rows()->Count(); });
  return {name, FindingKind::kTable,
          rows > 0 ? start + "because it refers to " + Counted(static_cast<std::size_t>(rows), "row") +
                         ", but the head of a table alone takes three."
                   : start + "because it refers to " + Quoted(defined->RefersTo()) +
                         ", which isn't a range of cells."};
}

/// The formulas without a result in the headings and data of a table, by column.
struct UncalculatedCells {
  std::size_t count = 0;
  std::int32_t firstRow = 0;
  bool heading = false;
};

std::map<std::int32_t, UncalculatedCells> FindUncalculated(xlsx::Worksheet& sheet, const TableArea& area) {
  std::map<std::int32_t, UncalculatedCells> columns;
  for (const auto& [row, column] : sheet.FormulasWithoutResult()) {
    if (row < area.HeadingRow() || row > area.lastRow || column < area.leftColumn) continue;
    UncalculatedCells& cells = columns[column];
    if (row == area.HeadingRow()) {
      cells.heading = true;
    } else if (cells.count++ == 0) {
      cells.firstRow = row;
    }
  }
  return columns;
}

/// The formulas without a result that a check includes.
struct FormulaScope {
  bool headings = true;
  std::optional<std::set<std::int32_t>> columns = std::nullopt;  ///< The data columns; all if absent.

  bool HasColumn(std::int32_t column) const { return !columns || columns->contains(column); }
};

void CheckFormulas(xlsx::Worksheet& sheet, const TableArea& area, const FormulaScope& scope,
                   Findings& findings) {
  std::string scratch;
  for (const auto& [column, cells] : FindUncalculated(sheet, area)) {
    if (cells.heading && scope.headings) {
      findings.push_back(
          {CellText(area.sheet, area.HeadingRow(), column), FindingKind::kCells,
           std::string("The heading is a formula without a result, so its column is ignored; ") +
               kHowToCalculate});
    }
    const std::string heading(GetCellText(sheet, area.HeadingRow(), column, scratch));
    if (heading.empty() || cells.count == 0 || !scope.HasColumn(column)) continue;
    findings.push_back(
        {CellText(area.sheet, cells.firstRow, column), FindingKind::kCells,
         "The column " + Quoted(heading) + " has " + Counted(cells.count, "formula") + " without a result" +
             ForCount(cells.count, ", here, which counts", ", the first one here, which count") +
             " as blank; " + kHowToCalculate});
  }
}

/// Finds errors in columns that otherwise contain numbers.
void CheckErrors(xlsx::Worksheet& sheet, const TableArea& area, const dom::IXMLDOMElement& table,
                 Findings& findings) {
  for (const dom::IXMLDOMElement& column : table.selectNodes("label-column")) {
    const std::int32_t number = GetAttributeLong(column, "worksheet-column-number");
    const ColumnCells cells(sheet, area, number);
    if (cells.errors == 0 || cells.firstText != 0 || cells.hasDates) continue;
    findings.push_back({CellText(area.sheet, cells.firstError, number), FindingKind::kCells,
                        "The column " + Quoted(GetAttributeText(column, "name")) + " has " +
                            Counted(cells.errors, "error") +
                            ForCount(cells.errors, ", here, ", ", the first one here, ") + cells.error +
                            ForCount(cells.errors, ", which makes it a label column; without it",
                                     ", which make it a label column; without them") +
                            " it is a number column."});
  }
}

/// Finds columns that no chart can use, because an earlier column of their kind has the same heading.
void CheckHeadings(const TableArea& area, const dom::IXMLDOMElement& table, Findings& findings) {
  for (const char* kind : {"label-column", "number-column"}) {
    std::map<std::string, std::int32_t> first;  // column numbers by heading in upper case
    for (const dom::IXMLDOMElement& column : table.selectNodes(kind)) {
      const std::string name = GetAttributeText(column, "name");
      const std::int32_t number = GetAttributeLong(column, "worksheet-column-number");
      const auto [earlier, isNew] = first.emplace(runtime::UCase(name), number);
      if (isNew) continue;
      findings.push_back({CellText(area.sheet, area.HeadingRow(), number), FindingKind::kCells,
                          "The heading " + Quoted(name) + " is the same as in " +
                              CellText(area.sheet, area.HeadingRow(), earlier->second) +
                              ", ignoring case, so charts use that column and never this one."});
    }
  }
}

/// Returns the names of the columns that a definition uses.
std::vector<std::string> UsedColumns(const dom::IXMLDOMElement& chart) {
  std::vector<std::string> names;
  const std::string type = GetAttributeText(chart, "type");
  for (const ColumnGroup& group : ColumnGroups()) {
    if (!group.IsReadFor(type)) continue;
    const auto element = chart.selectSingleNode(group.element);
    if (!element) continue;
    for (const dom::IXMLDOMElement& column : element.selectNodes("column")) {
      names.push_back(GetAttributeText(column, "name"));
    }
  }
  return names;
}

dom::IXMLDOMElement FindTable(const std::string& id) {
  return CollectionHasKey(id, colTables) ? colTables->Item(id).selectSingleNode("table")
                                         : dom::IXMLDOMElement();
}

/// Returns the sheet of a table if it has formulas without a result, which is rare, or null.
std::shared_ptr<xlsx::Worksheet> UncalculatedSheet(xlsx::Workbook& book, const dom::IXMLDOMElement& table) {
  if (!table) return nullptr;
  const auto sheet = book.FindWorksheet(GetAttributeText(table, "table-worksheet"));
  return sheet && !sheet->FormulasWithoutResult().empty() ? sheet : nullptr;
}

/// Finds formulas without a result in the given columns, and in the headings if one column is missing.
Findings CheckFormulasOf(xlsx::Worksheet& sheet, const dom::IXMLDOMElement& table,
                         const std::vector<std::string>& names) {
  FormulaScope scope{.headings = false, .columns = std::set<std::int32_t>()};
  for (const std::string& name : names) {
    if (const auto column = FindColumn(table.childElements(), name))
      scope.columns->insert(GetAttributeLong(column, "worksheet-column-number"));
    else
      scope.headings = true;
  }
  Findings findings;
  CheckFormulas(sheet, TableArea(table), scope, findings);
  return findings;
}

}  // namespace

std::vector<std::string> LoadedTableIds() {
  std::vector<std::string> ids;
  for (const auto& document : *colTables) {
    ids.push_back(GetAttributeText(document.selectSingleNode("table"), "id"));
  }
  return ids;
}

Findings CheckUsedCells(xlsx::Workbook& book, const dom::IXMLDOMElement& chart) {
  const std::string bucketTable = GetAttributeText(chart, "strategic-bucket-table-id");
  const auto buckets = bucketTable.empty() ? dom::IXMLDOMElement() : FindTable(bucketTable);
  std::vector<std::string> bucketColumns;
  if (buckets) {
    bucketColumns = {GetAttributeText(buckets, "bucket-name-column"),
                     GetAttributeText(buckets, "bucket-value-column")};
  }
  Findings findings;
  if (const auto sheet = UncalculatedSheet(book, buckets)) {
    findings = CheckFormulasOf(*sheet, buckets, bucketColumns);
  }
  const auto table = FindTable(GetAttributeText(chart, "table-id"));
  if (const auto sheet = UncalculatedSheet(book, table)) {
    std::vector<std::string> names = UsedColumns(chart);
    names.insert(names.end(), bucketColumns.begin(), bucketColumns.end());
    Append(findings, CheckFormulasOf(*sheet, table, names));
  }
  return findings;
}

std::vector<CheckedTable> CheckTables(xlsx::Workbook& book) {
  std::vector<CheckedTable> tables;
  for (const auto& document : *colTables) {
    const auto table = document.selectSingleNode("table");
    CheckedTable& checked = tables.emplace_back(CheckedTable{GetAttributeText(table, "id"), table, {}});
    const TableArea area(table);
    const auto sheet = book.FindWorksheet(area.sheet);
    if (!sheet) continue;
    CheckHeadings(area, table, checked.findings);
    CheckErrors(*sheet, area, table, checked.findings);
    CheckFormulas(*sheet, area, FormulaScope(), checked.findings);
  }
  const auto names = oWorkbook->Names();
  for (std::int32_t i = 1; i <= names->Count(); ++i) {
    const std::string name = names->Item(i)->Name();
    if (NamesTable(name) && !CollectionHasKey(name, colTables)) {
      tables.push_back({name, {}, {NoTable(name)}});
    }
  }
  return tables;
}

}  // namespace plotsmith::cli
