#include "cli/check/TableCheck.h"

#include <map>

#include "cli/check/ColumnCells.h"
#include "cli/check/Words.h"
#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "metadata/TableDefinitions.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kHowToCalculate = "have a spreadsheet program calculate and save the workbook.";

/// Why a defined name marks no table.
Finding NoTable(const std::string& name) {
  const std::string start = "The name " + Quoted(name) + " marks no table, ";
  const auto defined = oWorkbook->Names()->Item(name);
  const std::int32_t rows =
      ValueOr(std::int32_t{0}, [&] { return defined->RefersToRange()->Rows()->Count(); });
  return {name, FindingKind::kTable,
          rows > 0 ? start + "because it refers to " + Counted(static_cast<std::size_t>(rows), "row") +
                         ", and the head of a table alone has three."
                   : start + "because it refers to " + Quoted(defined->RefersTo()) +
                         ", which is no range of cells."};
}

/// The formulas without a result in a table's headings and data, by column.
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

void CheckFormulas(xlsx::Worksheet& sheet, const TableArea& area, Findings& findings) {
  std::string scratch;
  for (const auto& [column, cells] : FindUncalculated(sheet, area)) {
    if (cells.heading) {
      findings.push_back({CellText(area.sheet, area.HeadingRow(), column), FindingKind::kCells,
                          std::string("The heading is a formula without a result, so that its column "
                                      "doesn't exist; ") +
                              kHowToCalculate});
    }
    const std::string heading(GetCellText(sheet, area.HeadingRow(), column, scratch));
    if (heading.empty() || cells.count == 0) continue;
    findings.push_back({CellText(area.sheet, cells.firstRow, column), FindingKind::kCells,
                        "The column " + Quoted(heading) + " has " + Counted(cells.count, "formula") +
                            " without a result, the first one here, which count as blank; " +
                            kHowToCalculate});
  }
}

/// Errors in columns that are numbers otherwise.
void CheckErrors(xlsx::Worksheet& sheet, const TableArea& area, const dom::IXMLDOMElement& table,
                 Findings& findings) {
  for (const dom::IXMLDOMElement& column : table.selectNodes("label-column")) {
    const std::int32_t number = GetAttributeLong(column, "worksheet-column-number");
    const ColumnCells cells(sheet, area, number);
    if (cells.errors == 0 || cells.firstText != 0 || cells.hasDates) continue;
    findings.push_back({CellText(area.sheet, cells.firstError, number), FindingKind::kCells,
                        "The column " + Quoted(GetAttributeText(column, "name")) + " has " +
                            Counted(cells.errors, "error") + ", the first one here, " + cells.error +
                            ", which make it a label column; without them it is a number column."});
  }
}

}  // namespace

std::vector<CheckedTable> CheckTables(xlsx::Workbook& book) {
  std::vector<CheckedTable> tables;
  for (const auto& document : *colTables) {
    const auto table = document.selectSingleNode("table");
    CheckedTable& checked = tables.emplace_back(CheckedTable{GetAttributeText(table, "id"), table, {}});
    const TableArea area(table);
    const auto sheet = book.FindWorksheet(area.sheet);
    if (!sheet) continue;
    CheckErrors(*sheet, area, table, checked.findings);
    CheckFormulas(*sheet, area, checked.findings);
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
