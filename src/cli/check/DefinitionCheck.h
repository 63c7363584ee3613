#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// A row of the sheet of definitions, and what is wrong with it. What a row doesn't say is empty.
struct CheckedDefinition {
  std::int32_t row = 0;
  std::string place;  ///< its cell, "VEX_ChartDefinitions!A2"
  std::string id, name, type, table;
  std::string chartSheet;          ///< where the chart is; empty if there is none
  std::string chartPart;           ///< the part of the chart that bears the id; empty if there is none
  dom::IXMLDOMDocument2 document;  ///< as the row has it; Nothing if it is no definition
  Findings findings;

  /// Whether a load takes the row off the sheet.
  bool IsLost() const;
  /// Whether the row lies where a load doesn't read; its first finding says why.
  bool IsUnread() const;
};

/// Looks at all rows of the sheet of definitions, also at those that a load passes over or removes: whether
/// they are definitions, and have charts. It wants `oWorkbook` set, and `book` is that workbook. Changes
/// nothing.
std::vector<CheckedDefinition> CheckRows(xlsx::Workbook& book);
/// The same, and whether the definitions go with the tables of `colTables`.
std::vector<CheckedDefinition> CheckDefinitions(xlsx::Workbook& book);

/// Charts whose ids lead astray: those without a definition among `rows`, and further ones with the same id.
/// A finding's place is the sheet.
Findings CheckStrayCharts(xlsx::Workbook& book, const std::vector<CheckedDefinition>& rows);

/// The cell of a definition, "VEX_ChartDefinitions!A2".
std::string DefinitionPlace(std::int32_t row);

}  // namespace plotsmith::cli
