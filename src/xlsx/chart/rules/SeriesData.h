#pragma once

#include <cstddef>
#include <map>
#include <pugixml.hpp>
#include <string>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The data of a series that can be set: its name, its categories or X values, its values, its bubble sizes.
enum class SeriesData { kName, kCategories, kValues, kBubbleSizes };

/// The texts of a series' data by the numbers of their points from 0. They come from the cache, or from the
/// cells if there is no cache. Points without a text are left out.
std::map<std::size_t, std::string> DataTexts(ChartPart& part, pugi::xml_node data);
/// The number of points in a series' data, in its cache or its cells.
std::size_t DataPoints(ChartPart& part, pugi::xml_node data);

/// The text of an element (c:tx) that has one by itself or from cells, of which the cache counts if there is
/// one.
std::string SourceText(ChartPart& part, pugi::xml_node tx);
/// The name that a series has by itself or from its cells; empty without one.
std::string SeriesName(ChartPart& part, pugi::xml_node series);
/// The name that Excel shows for a series; "Series" and its number if it has none.
std::string ShownName(ChartPart& part, pugi::xml_node series);

/// Makes a series refer to cells ("=Sheet1!$A$1:$A$5", or in R1C1 notation), and fills the chart's cache from
/// them. A name may also be a literal text. Error 1004 for any other value.
void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const runtime::Variant& value);

/// The element of a series that holds its values.
pugi::xml_node FindValues(pugi::xml_node series);

}  // namespace plotsmith::xlsx
