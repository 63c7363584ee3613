#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the tables of the workbook, found by their defined names and sheet names, each as a
/// document with the root `table`. They are recomputed at each discovery and never saved.
namespace plotsmith {

/// Replaces `colTables`: range tables in the order of their names, then data sheets.
void RetrieveTableDefinitions();

/// Whether a defined name is to mark a table, by its beginning. A name of one sheet alone marks none.
bool NamesTable(std::string_view sName);
/// True for a value that makes its column a label column: any but a number, a Boolean, a text that reads as a
/// number, and blanks.
bool IsLabelValue(const excel::CellValue& vValue);

/// The table under a defined name, or Nothing if the name is no range of at least three rows.
dom::IXMLDOMDocument2 GetTableDefinitionAsXML(const std::string& sTableRangeName);
/// The table on a data sheet, or Nothing if it has no row of data.
dom::IXMLDOMDocument2 GetDataNTableAsXML(const std::string& sSheetName);
/// A `label-column` or `number-column` in a document of its own, or Nothing for a column without a heading.
dom::IXMLDOMElement GetColumnDefinitionAsXML(const runtime::Ref<excel::Worksheet>& oSheet,
                                             std::int32_t lHeaderRow, std::int32_t lColumn,
                                             std::int32_t lLastRow);
/// The sheet that a name's reference names, without its quotes; "" if the name is no range.
std::string SheetNameFromRefersTo(const runtime::Ref<excel::DefinedName>& oName);

}  // namespace plotsmith
