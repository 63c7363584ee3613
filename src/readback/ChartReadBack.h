#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSRevEngineerChart: reads the changes that a person made to a chart or its comment box into
/// the definition. This happens each time the definitions are loaded, so that the next rebuild keeps the
/// changes.
namespace plotsmith {

/// Reads back all settings of a chart. A chart without series, such as one that waits for its first refresh,
/// doesn't change the definition. Raises the errors that the functions below don't report themselves.
void RevEngineerChart(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the title of the chart.
void RevEngineerChartTitle(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the chart type and the settings that are part of it.
void RevEngineerChartType(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the number format. If the axis isn't linked to the cells, a person chose the format, because drawing
/// always links the axis.
void RevEngineerNumberFormat(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Returns true if the chart has the combination of series that a strategic bucket chart consists of.
bool IsStrBuckChart(const runtime::Ref<excel::Chart>& oChart);
/// Reads the comment. `oShape` is the chart's comment box, or Nothing.
void RevEngineerComment(const runtime::Ref<excel::Shape>& oShape, dom::IXMLDOMDocument2& oChartDoc);

}  // namespace plotsmith
