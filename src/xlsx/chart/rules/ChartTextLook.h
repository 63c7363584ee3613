#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/drawing/DrawingFont.h"

/// How the texts of a chart look, whatever of the ways to say so the file uses: properties of runs, of
/// paragraphs, of the element or of the whole chart, and Excel's defaults where it says nothing.
namespace plotsmith::xlsx {

class ChartPart;

/// Titles have defaults of their own: Excel draws them bold, and the chart's larger.
enum class TextRole { kChartTitle, kAxisTitle, kOther };

/// The look of each run of a title, or the one look of an element whose text isn't its own.
std::vector<TextLook> LooksOf(ChartPart& part, pugi::xml_node element, TextRole role);
/// The looks in a legend, entries with a look of their own among them.
std::vector<TextLook> LooksOfLegend(ChartPart& part, pugi::xml_node legend);
/// The looks of a series' labels, of which `labels` holds the common properties.
std::vector<TextLook> LooksOfLabels(ChartPart& part, pugi::xml_node labels, std::size_t points);

}  // namespace plotsmith::xlsx
