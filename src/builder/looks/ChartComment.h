#pragma once

#include <string>

#include "dom/Dom.h"
#include "host/excel/Shape.h"
#include "runtime/Ref.h"

/// Module PSChartBuilder: the text box beside a chart that says what somebody has to say of it.
namespace plotsmith {

/// Puts the definition's comment into the box, makes the box where there is none, and deletes it where there
/// is no comment.
void SetChartComment(const dom::IXMLDOMElement& oChartElement);
/// A new box at the top right corner of the chart, entered in `colChartShapes`; Nothing if the chart isn't on
/// the sheet.
runtime::Ref<excel::Shape> AddCommentBox(const std::string& sSheet, const std::string& sID);

}  // namespace plotsmith
