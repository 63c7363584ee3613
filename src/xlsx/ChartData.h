#pragma once

#include <pugixml.hpp>
#include <string>

#include "runtime/Variant.h"

namespace plotsmith::xlsx {

class ChartPart;

/// What a series can be given as its name, its categories or its values.
enum class SeriesData { kName, kCategories, kValues };

/// The name of a series as it is written in the part, from its cell or by itself; empty without one.
std::string SeriesText(pugi::xml_node series);

/// Points a series at cells ("=Sheet1!$A$1:$A$5", or R1C1), and fills the chart's cache from them, so that a
/// reader shows the chart without computing anything. A name may also be a literal text. Error 1004 for what
/// is neither.
void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const runtime::Variant& value);

}  // namespace plotsmith::xlsx
