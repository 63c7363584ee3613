#pragma once

#include <cstddef>
#include <map>
#include <pugixml.hpp>
#include <string>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

class ChartPart;

/// What a series can be given as its name, its categories or X values, its values, or the sizes of its
/// bubbles.
enum class SeriesData { kName, kCategories, kValues, kBubbleSizes };

/// The texts of a series' data by the numbers of their points from 0: those that the part holds, or where it
/// has no cache, those of the cells. Points without a text are left out.
std::map<std::size_t, std::string> DataTexts(ChartPart& part, pugi::xml_node data);
/// The number of points in a series' data, in its cache or its cells.
std::size_t DataPoints(ChartPart& part, pugi::xml_node data);

/// The text of an element (c:tx) that has one by itself or from cells, of which the cache counts if there is
/// one.
std::string SourceText(ChartPart& part, pugi::xml_node tx);
/// The name that a series has by itself or from its cells; empty without one.
std::string SeriesName(ChartPart& part, pugi::xml_node series);
/// What Excel calls a series: by its name, else by its number.
std::string ShownName(ChartPart& part, pugi::xml_node series);

/// Points a series at cells ("=Sheet1!$A$1:$A$5", or R1C1), and fills the chart's cache from them, so that a
/// reader shows the chart without computing anything. A name may also be a literal text. Error 1004 for what
/// is neither.
void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const runtime::Variant& value);

/// The element of a series that holds its values.
pugi::xml_node FindValues(pugi::xml_node series);

}  // namespace plotsmith::xlsx
