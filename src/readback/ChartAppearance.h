#pragma once

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Module PSRevEngineerChart, second half: how the chart looks, as far as the definition keeps it. It goes
/// into `auto-persistence`, from where the next rebuild takes its fonts and places, and into `axes` and
/// `data-labels`.
namespace plotsmith {

void RevEngineerAutoPersistence(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// A title that differs from the definition in its text or its font is the person's from now on: "sticky".
void RevEngineerAxisLabels(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
void RevEngineerChartLegend(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);
/// Of the fonts among the labels the rarest is kept: it is the one that somebody chose.
void RevEngineerChartDataLabels(const runtime::Ref<excel::Chart>& oChart, dom::IXMLDOMDocument2& oChartDoc);

}  // namespace plotsmith
