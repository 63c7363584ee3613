#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "dom/Dom.h"
#include "host/excel/Worksheet.h"

namespace plotsmith::cli {

/// Where a table is, in rows and columns of its sheet from 1.
struct TableArea {
  explicit TableArea(const dom::IXMLDOMElement& table);

  bool HasData() const { return firstRow <= lastRow; }
  std::int32_t HeadingRow() const { return firstRow - 1; }

  std::string sheet;
  std::int32_t leftColumn = 0;
  std::int32_t firstRow = 0, lastRow = 0;  ///< of the data; the last comes before the first without any
};

/// What the cells of one column hold. A place with the row 0 means that there is no such cell.
struct ColumnCells {
  /// Reads the column down to the first cell that makes it a label column for its text.
  ColumnCells(excel::Worksheet& sheet, const TableArea& area, std::int32_t column);

  /// Row of the cell that makes it a label column: an error comes before the first text. 0 if there is none,
  /// or if only dates do.
  std::int32_t LabelRow() const { return firstError != 0 ? firstError : firstText; }
  /// What that cell holds: "the error #N/A", "the text '5 pcs'".
  std::string LabelCell() const;

  std::size_t errors = 0;
  std::int32_t firstError = 0;  ///< row of the first error value
  std::int32_t firstText = 0;   ///< row of the first text that is no number
  bool hasDates = false;
  std::string error, text;  ///< what those two cells show
};

/// The column of that name as a chart finds it, ignoring case; Nothing if there is none.
dom::IXMLDOMElement FindColumn(const dom::IXMLDOMNodeList& columns, const std::string& name);

}  // namespace plotsmith::cli
