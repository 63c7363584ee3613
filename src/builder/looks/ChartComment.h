#pragma once

#include <string>

#include "dom/Dom.h"
#include "host/excel/Shape.h"
#include "runtime/Ref.h"

/// Module PSChartBuilder: the text box with the comment beside a chart.
namespace plotsmith {

/// Writes the definition's comment into the box. The box is added if there is none, and deleted if there is
/// no comment.
void SetChartComment(const dom::IXMLDOMElement& oChartElement);
/// Adds a box at the top right corner of the chart, and adds it to `colChartShapes`. Returns Nothing if the
/// chart isn't on the sheet.
runtime::Ref<excel::Shape> AddCommentBox(const std::string& sSheet, const std::string& sID);

}  // namespace plotsmith
