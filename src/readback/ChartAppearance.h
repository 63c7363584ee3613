#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSRevEngineerChart: reads the look of a chart into its definition. The elements are
/// `auto-persistence` (the next rebuild takes fonts and positions from it), `axes` and `data-labels`.
namespace plotsmith {

/// Replaces `auto-persistence`, and reads the axis titles, the legend and the data labels.
void RevEngineerAutoPersistence(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the axis titles. A title whose text or font differs from the definition was changed by a person and
/// becomes "sticky".
void RevEngineerAxisLabels(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the visibility, the position and the font of the legend.
void RevEngineerChartLegend(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Reads the data labels. If the labels have several fonts, the least frequent one is kept, because a person
/// chose it.
void RevEngineerChartDataLabels(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);

}  // namespace plotsmith
