#pragma once

#include <cstdint>

namespace plotsmith {

/// The name of the product in the titles of message boxes.
inline constexpr const char* kProductTitle = "Brindle Plotsmith";

/// The very hidden sheet of the chart definitions. A1 contains kDefinitionsSheetMark, and each cell from A2
/// on contains a document.
inline constexpr const char* kDefinitionsSheet = "VEX_ChartDefinitions";
/// The text in A1 of the sheet of definitions.
inline constexpr const char* kDefinitionsSheetMark = "Plotsmith Version 2.0";
/// The row of the first definition, from 1.
inline constexpr std::int32_t kFirstDefinitionRow = 2;
/// The very hidden sheet of the pivoted data. Each chart has a block of rows on it.
inline constexpr const char* kDataSheet = "VEX_ChartData";

/// The columns of a block, from 1: the chart's id in each row, the name of the row's category, and the
/// series.
namespace data_column {
/// The id of the chart.
inline constexpr std::int32_t kId = 1;
/// The name of the category.
inline constexpr std::int32_t kName = 2;
/// The values of the first series. Other series follow it.
inline constexpr std::int32_t kFirstSeries = 3;
}  // namespace data_column

/// The name of the table's sheet in a definition whose table was deleted.
inline constexpr const char* kDeletedTable = "[Deleted]";

/// Macros that a workbook can have. The system calls the first one at the start of a refresh and, with the
/// id, at the start of each chart. It calls the second one at the end of a refresh.
///@{
inline constexpr const char* kRefreshStartedMacro = "VEXEvents.VEXChartRefreshStarted";
inline constexpr const char* kRefreshCompleteMacro = "VEXEvents.VEXChartRefreshComplete";
///@}

/// The line break in the texts of shapes and message boxes.
inline constexpr const char* kLineBreak = "\r\n";

/// The last host version without the busy window and without A1 references for series names.
inline constexpr double kLastClassicVersion = 11.0;

/// The task of a run (`lMethodType`).
namespace method {
/// Makes a chart.
inline constexpr std::int32_t kNew = 0;
/// Changes the definition of a chart.
inline constexpr std::int32_t kModify = 1;
/// Copies a chart and changes the definition of the copy.
inline constexpr std::int32_t kCopy = 2;
/// Deletes charts.
inline constexpr std::int32_t kDelete = 3;
/// Refreshes charts.
inline constexpr std::int32_t kRefresh = 4;
}  // namespace method

/// The kinds of results of `GetCellValue`: the displayed text, the number, or the value as a text.
namespace cell {
/// The displayed text.
inline constexpr std::int32_t kText = 0;
/// The number, as a Double.
inline constexpr std::int32_t kDouble = 1;
/// The value, as a text.
inline constexpr std::int32_t kString = 2;
}  // namespace cell

}  // namespace plotsmith
