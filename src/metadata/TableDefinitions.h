#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the tables of the workbook, found by defined names and sheet names. Each table is a
/// document with the root `table`. The documents are computed in each run and never saved.
namespace plotsmith {

/// Replaces `colTables`: first the range tables in the order of their names, then the data sheets.
void RetrieveTableDefinitions();

/// Returns true if a defined name marks a table. Only the beginning of the name matters. A name that belongs
/// to one sheet never marks a table.
bool NamesTable(std::string_view sName);
/// Returns true if the value makes its column a label column. That is any value except numbers, Booleans,
/// texts that look like numbers, and blanks.
bool IsLabelValue(const excel::CellValue& vValue);

/// Returns the table of a defined name, or Nothing if the name isn't a range of at least three rows.
dom::IXMLDOMDocument2 GetTableDefinitionAsXML(const std::string& sTableRangeName);
/// Returns the table of a data sheet, or Nothing if the sheet has no data row.
dom::IXMLDOMDocument2 GetDataNTableAsXML(const std::string& sSheetName);
/// Returns a `label-column` or `number-column` element in a document of its own, or Nothing for a column
/// without a heading.
dom::IXMLDOMElement GetColumnDefinitionAsXML(const runtime::Ref<excel::Worksheet>& oSheet,
                                             std::int32_t lHeaderRow, std::int32_t lColumn,
                                             std::int32_t lLastRow);
/// Returns the sheet name in the reference of a defined name, without quotes, or "" if the name isn't a
/// range.
std::string SheetNameFromRefersTo(const runtime::Ref<excel::DefinedName>& oName);

}  // namespace plotsmith
