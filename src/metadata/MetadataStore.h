#pragma once

#include <string>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the chart definitions on their very hidden sheet, one document a row, and the charts
/// and comment boxes that they belong to. The link is the alternative text of the shape, which holds the
/// chart's id, so that it survives when a user moves or renames the shape.
namespace plotsmith {

/// Builds `colCharts`, `colChartObjects` and `colChartShapes` from the sheet, which is made if it is missing.
/// Each definition is corrected from its live chart; one that doesn't parse, has no chart or can't be loaded
/// leaves the sheet without a word.
void RetrieveChartDefinitions();

/// Marks in each document of `colCharts` whether its tables still fit (`table-corrupted`).
void ValidateChartsAgainstTables();

/// Writes a document to its row, or behind the last one if it is new.
void SaveChartDefinition(const dom::IXMLDOMDocument2& oDoc);

/// The shape of a type (MsoShapeType) that bears the id, on one sheet; the first one wins. A definition
/// without an id has no shape: it must not lay hands on a chart of somebody else's that has no alternative
/// text.
runtime::Ref<excel::Shape> FindShape(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lType,
                                     const std::string& sID);
/// The first worksheet that has the chart, or "".
std::string FindChartSheet(const std::string& sID);
runtime::Ref<excel::Chart> FindChartObject(const std::string& sID, const std::string& sSheetName);
runtime::Ref<excel::Shape> FindChartComment(const std::string& sID, const std::string& sSheetName);
/// The sheet of a table, or "[Deleted]".
std::string GetTableSheetName(const std::string& sID);

/// Gives a workbook that has no chart yet, and whose palette nobody changed, the chart colours of the system.
void EnsureWorkbookPalette();

}  // namespace plotsmith
