#pragma once

#include <cstddef>
#include <map>
#include <pugixml.hpp>
#include <string>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The parts of a series' data that can be set: its name, categories or X values, values, and bubble sizes.
enum class SeriesData { kName, kCategories, kValues, kBubbleSizes };

/// The texts of a series' data by the index of their point, from 0. They come from the cache, or from the
/// cells if there is no cache. Points without a text are left out.
std::map<std::size_t, std::string> DataTexts(ChartPart& part, pugi::xml_node data);
/// The number of points in a series' data, from its cache or its cells.
std::size_t DataPoints(ChartPart& part, pugi::xml_node data);

/// The text of an element (c:tx), which is its own or that of cells. If there is a cache, it is used instead
/// of the cells.
std::string SourceText(ChartPart& part, pugi::xml_node tx);
/// The name of a series, its own or that of its cells; empty if it has none.
std::string SeriesName(ChartPart& part, pugi::xml_node series);
/// The name that Excel shows for a series; "Series" and a number if it has none.
std::string ShownName(ChartPart& part, pugi::xml_node series);

/// Makes a series refer to cells ("=Sheet1!$A$1:$A$5", or in R1C1 notation), and fills the chart's cache from
/// them. A name may also be a literal text, or a formula that is only a quoted text (="East"). Raises error
/// 1004 for other values.
void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const runtime::Variant& value);

/// The element of a series that contains its values.
pugi::xml_node FindValues(pugi::xml_node series);

}  // namespace plotsmith::xlsx
