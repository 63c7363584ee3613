#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "dom/Dom.h"
#include "host/excel/Worksheet.h"

namespace plotsmith::cli {

/// The position of a table on its sheet. Rows and columns count from 1.
struct TableArea {
  /// Reads the position from a table document.
  explicit TableArea(const dom::IXMLDOMElement& table);

  /// Returns true if the table has a data row.
  bool HasData() const { return firstRow <= lastRow; }
  /// Returns the row of the headings.
  std::int32_t HeadingRow() const { return firstRow - 1; }

  /// The name of the sheet.
  std::string sheet;
  /// The first column of the table.
  std::int32_t leftColumn = 0;
  /// The first and the last data row. `lastRow` is less than `firstRow` if there are none.
  std::int32_t firstRow = 0, lastRow = 0;
};

/// The contents of a column. A row of 0 means that there is no such cell.
struct ColumnCells {
  /// Reads the column down to the first text that makes it a label column.
  ColumnCells(excel::Worksheet& sheet, const TableArea& area, std::int32_t column);

  /// The row of the cell that makes it a label column. An error precedes the first text. It is 0 if there is
  /// none, or if only dates make it one.
  std::int32_t LabelRow() const { return firstError != 0 ? firstError : firstText; }
  /// Describes the cell that makes it a label column: "the error #N/A", "the text '5 pcs'".
  std::string LabelCell() const;

  std::size_t errors = 0;       ///< The number of error values.
  std::int32_t firstError = 0;  ///< The row of the first error value.
  std::int32_t firstText = 0;   ///< The row of the first text that isn't a number.
  bool hasDates = false;        ///< Whether the column contains dates.
  /// The displayed texts of the first error value and of the first text.
  std::string error, text;
};

/// Returns the column with the name, ignoring case as charts do, or Nothing.
dom::IXMLDOMElement FindColumn(const dom::IXMLDOMNodeList& columns, const std::string& name);

}  // namespace plotsmith::cli
