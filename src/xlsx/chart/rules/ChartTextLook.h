#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/drawing/DrawingFont.h"

/// The formats of a chart's texts. The file can define them for runs, for paragraphs, for the element or for
/// the whole chart; otherwise Excel's defaults apply.
namespace plotsmith::xlsx {

class ChartPart;

/// The kinds of texts with different defaults. Excel draws titles bold, and the title of the chart larger.
enum class TextRole { kChartTitle, kAxisTitle, kOther };

/// The formats of a title's runs, or the single format of an element without its own text.
std::vector<TextLook> LooksOf(ChartPart& part, pugi::xml_node element, TextRole role);
/// The format of a text of a title with the run properties `properties` (a:rPr, a:endParaRPr) in `paragraph`.
/// The properties may be null.
TextLook LookOfRun(ChartPart& part, pugi::xml_node element, pugi::xml_node paragraph,
                   pugi::xml_node properties, TextRole role);
/// The formats in a legend, including those of single entries.
std::vector<TextLook> LooksOfLegend(ChartPart& part, pugi::xml_node legend);
/// The formats of the labels of a series with `points` points; `labels` is its `dLbls` element.
std::vector<TextLook> LooksOfLabels(ChartPart& part, pugi::xml_node labels, std::size_t points);

}  // namespace plotsmith::xlsx
