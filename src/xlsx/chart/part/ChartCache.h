#pragma once

#include <cstddef>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"

/// What the chart part holds of the data of its series and titles, so that a reader shows the chart without
/// computing anything. All of it is ST_Xstring: read and written here alone.
namespace plotsmith::xlsx {

/// The text of an element's `v`: of a point, or of a name that is no cell's.
std::string CachedText(pugi::xml_node holder);
void SetCachedText(pugi::xml_node holder, std::string_view text);

/// The texts of a series' data, or of a title's cells, by the numbers of their points from 0. Points without
/// a text are left out.
std::map<std::size_t, std::string> CachedTexts(pugi::xml_node data);
/// Numbers, one for each point, and Empty where there is none.
std::vector<runtime::Variant> CachedNumbers(pugi::xml_node data);
/// The number of points in a series' data.
std::size_t PointCount(pugi::xml_node data);
/// The points of all that a series shows.
std::size_t CachedPoints(pugi::xml_node series);

/// Fills an empty cache (c:strCache, c:numCache) with its points.
class CacheWriter {
 public:
  CacheWriter(pugi::xml_node cache, std::size_t count);
  /// Points come in ascending order.
  void Add(std::size_t index, std::string_view text);

 private:
  pugi::xml_node cache_;
  std::string pointName_, valueName_;
};

}  // namespace plotsmith::xlsx
