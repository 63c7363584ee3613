#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSRevEngineerChart, first half: what a person changed on a live chart or its comment box is carried
/// back into the definition at each load, so that the next rebuild keeps it.
namespace plotsmith {

/// A chart without series, as one that waits for its first refresh, leaves the definition as it is. Raises
/// what the parts behind don't report themselves.
void RevEngineerChart(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
void RevEngineerChartTitle(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// The type and those settings that are part of it.
void RevEngineerChartType(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// A format counts as typed by hand when the axis isn't linked to the cells, as drawing always links it.
void RevEngineerNumberFormat(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Whether the chart has the mix of series that a strategic bucket chart is drawn with.
bool IsStrBuckChart(const runtime::Ref<excel::Chart>& oChart);
/// `oShape` is the chart's comment box, or Nothing.
void RevEngineerComment(const runtime::Ref<excel::Shape>& oShape, dom::IXMLDOMDocument2& oChartDoc);

}  // namespace plotsmith
