#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Whether axis titles count as differences, or have just been given the new names of columns.
enum class AxisTitles { kCompared, kRenamed };

/// Where a definition says one thing of a drawn chart and the chart another, which counts. `stored` is the
/// `chart` element of the row, `read` the same after a load has read the chart back. What `stored` doesn't
/// say at all is no difference.
Findings CheckReadBack(const dom::IXMLDOMElement& stored, const dom::IXMLDOMElement& read,
                       const std::string& place, AxisTitles axisTitles);

/// Whether it was the definition that a person changed last, and not the chart. A person changes a chart in a
/// spreadsheet program, which writes the chart's part anew in its own form. So a chart whose part still has
/// Plotsmith's form has not been changed by hand since it was drawn. The same goes for a definition that
/// Plotsmith has not stored yet.
bool IsDefinitionNewer(xlsx::Workbook& book, const dom::IXMLDOMElement& stored, const std::string& chartPart);

}  // namespace plotsmith::cli
