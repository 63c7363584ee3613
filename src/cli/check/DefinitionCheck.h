#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// A row of the sheet of definitions with its problems. Missing values are empty.
struct CheckedDefinition {
  std::int32_t row = 0;  ///< The row on the sheet, from 1.
  std::string place;     ///< The cell, such as "VEX_ChartDefinitions!A2".
  /// The attributes `id`, `name`, `type` and `table-id`.
  std::string id, name, type, table;
  std::string chartSheet;          ///< The sheet of the chart; empty if there is none.
  std::string chartPart;           ///< The part of the chart with the id; empty if there is none.
  dom::IXMLDOMDocument2 document;  ///< The document in the row; Nothing if it isn't a definition.
  Findings findings;               ///< The problems of the row; empty if there are none.

  /// Returns true if a load removes the row.
  bool IsLost() const;
  /// Returns true if a load doesn't reach the row. Its first finding gives the reason.
  bool IsUnread() const;
};

/// Checks all rows of the sheet of definitions, including rows that a load skips or removes: whether they are
/// definitions, and whether they have charts. `oWorkbook` must be set, and `book` is that workbook. Changes
/// nothing.
std::vector<CheckedDefinition> CheckRows(xlsx::Workbook& book);
/// Checks the rows in the same way, and also whether the definitions fit the tables in `colTables`.
std::vector<CheckedDefinition> CheckDefinitions(xlsx::Workbook& book);

/// Finds charts without a definition in `rows`, and further charts with the same id. The place of a finding
/// is the sheet.
Findings CheckStrayCharts(xlsx::Workbook& book, const std::vector<CheckedDefinition>& rows);

/// Returns the cell of a definition, such as "VEX_ChartDefinitions!A2".
std::string DefinitionPlace(std::int32_t row);

}  // namespace plotsmith::cli
