#pragma once

#include <string>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the chart definitions on their very hidden sheet (one document per row), and their
/// charts and comment boxes. The alternative text of a shape contains the id of its chart, so that the
/// connection survives when a user moves or renames the shape.
namespace plotsmith {

/// Fills `colCharts`, `colChartObjects` and `colChartShapes` from the sheet, which is created if it is
/// missing. Each definition is updated from its chart. A definition that doesn't parse, has no chart or can't
/// be loaded is removed from the sheet without a message.
void RetrieveChartDefinitions();

/// Stores in each document of `colCharts` whether its tables still fit (`table-corrupted`).
void ValidateChartsAgainstTables();

/// Writes a document to its row, or below the last row if it is new.
void SaveChartDefinition(const dom::IXMLDOMDocument2& oDoc);

/// Returns the first shape of a type (MsoShapeType) with the id on one sheet, or Nothing. A definition
/// without an id has no shape; otherwise it would take a foreign chart that has no alternative text.
runtime::Ref<excel::Shape> FindShape(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lType,
                                     const std::string& sID);
/// Returns the name of the first worksheet that contains the chart, or "".
std::string FindChartSheet(const std::string& sID);
/// Returns the chart with the id on a sheet, or Nothing.
runtime::Ref<excel::Chart> FindChartObject(const std::string& sID, const std::string& sSheetName);
/// Returns the comment box of the chart with the id on a sheet, or Nothing.
runtime::Ref<excel::Shape> FindChartComment(const std::string& sID, const std::string& sSheetName);
/// Returns the name of a table's sheet, or "[Deleted]".
std::string GetTableSheetName(const std::string& sID);

/// Sets the palette of the workbook to the system's chart colours if the workbook has no chart yet and its
/// palette is unchanged.
void EnsureWorkbookPalette();

}  // namespace plotsmith
