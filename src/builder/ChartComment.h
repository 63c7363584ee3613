#pragma once

#include "dom/Dom.h"

namespace plotsmith {

/// Module PSChartBuilder: puts the definition's comment into the text box beside the chart, makes the box
/// where there is none, and deletes it where there is no comment.
void SetChartComment(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith
