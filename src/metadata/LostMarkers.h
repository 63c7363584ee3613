#pragma once

#include <string>

/// Charts and comment boxes belong to a definition by its id in their alternative text. LibreOffice up to 7.4
/// drops that text when it saves a workbook. But a drawn chart still shows the data block of its definition,
/// and by that it is known again.
namespace plotsmith {

/// Looks for a chart without an alternative text that shows a data block of the id, and gives it its marker
/// back. The sheet's name, or "" if there is none.
std::string RestoreChartMarker(const std::string& sID);
/// The same for the chart's comment box, known by its text.
void RestoreCommentMarker(const std::string& sID, const std::string& sSheetName, const std::string& sComment);

}  // namespace plotsmith
