#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/drawing/DrawingFont.h"

/// The formats of a chart's texts. The file can give them for runs, for paragraphs, for the element or for
/// the whole chart; where it gives none, Excel's defaults count.
namespace plotsmith::xlsx {

class ChartPart;

/// The kinds of texts with different defaults. Excel draws titles bold, and the title of the chart larger.
enum class TextRole { kChartTitle, kAxisTitle, kOther };

/// The formats of the runs of a title, or the one format of an element without a text of its own.
std::vector<TextLook> LooksOf(ChartPart& part, pugi::xml_node element, TextRole role);
/// The formats in a legend, with those of entries that have their own.
std::vector<TextLook> LooksOfLegend(ChartPart& part, pugi::xml_node legend);
/// The formats of the labels of a series with `points` points; `labels` is its `dLbls` element.
std::vector<TextLook> LooksOfLabels(ChartPart& part, pugi::xml_node labels, std::size_t points);

}  // namespace plotsmith::xlsx
