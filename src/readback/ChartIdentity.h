#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSRevEngineerChart: what a person changed on a live chart, carried back into its definition at each
/// load. Nothing is carried back yet: both leave the definition as it is.
namespace plotsmith {

void RevEngineerChart(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oDoc);
/// `oShape` is the chart's comment box, or Nothing.
void RevEngineerComment(const runtime::Ref<excel::Shape>& oShape, dom::IXMLDOMDocument2& oDoc);

}  // namespace plotsmith
