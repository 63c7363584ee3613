#include "cli/check/ColumnCells.h"

#include <algorithm>

#include "cli/check/Words.h"
#include "common/Documents.h"
#include "metadata/TableDefinitions.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {

TableArea::TableArea(const dom::IXMLDOMElement& table)
    : sheet(GetAttributeText(table, "table-worksheet")),
      leftColumn(GetAttributeLong(table, "table-left-column")) {
  const std::int32_t top = GetAttributeLong(table, "table-top-row");
  firstRow = top + GetAttributeLong(table, "header-row-count");
  lastRow = top + GetAttributeLong(table, "table-height") - 1;
}

ColumnCells::ColumnCells(excel::Worksheet& sheet, const TableArea& area, std::int32_t column) {
  using Kind = excel::CellValue::Kind;
  for (std::int32_t row = area.HeadingRow();
       (row = sheet.NextRowAt(row, column)) != 0 && row <= area.lastRow;) {
    const excel::CellValue value = sheet.CellValueAt(row, column);
    if (!IsLabelValue(value)) continue;
    if (value.kind == Kind::kDate) {
      hasDates = true;
    } else if (value.kind == Kind::kError) {
      if (errors++ == 0) {
        firstError = row;
        error = value.text;
      }
    } else {
      firstText = row;
      text = value.text;
      return;
    }
  }
}

std::string ColumnCells::LabelCell() const {
  return firstError != 0 ? "the error " + error : "the text " + Quoted(text);
}

dom::IXMLDOMElement FindColumn(const dom::IXMLDOMNodeList& columns, const std::string& name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const dom::IXMLDOMElement& column) {
    return runtime::EqualsIgnoreCase(GetAttributeText(column, "name"), name);
  });
  return found == columns.end() ? dom::IXMLDOMElement() : *found;
}

}  // namespace plotsmith::cli
