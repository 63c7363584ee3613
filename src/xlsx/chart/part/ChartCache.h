#pragma once

#include <cstddef>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"

/// The caches of a chart part. They contain the data of series and titles, so that a program can show the
/// chart without computing anything. All texts are of type ST_Xstring, which only these functions encode and
/// decode.
namespace plotsmith::xlsx {

/// The text in the `v` child of a point, or of a series name that doesn't come from a cell.
std::string CachedText(pugi::xml_node holder);
/// Sets the text in the `v` child.
void SetCachedText(pugi::xml_node holder, std::string_view text);

/// The texts of a series' data, or of a title's cells, by the index of their point, from 0. Points without a
/// text are left out.
std::map<std::size_t, std::string> CachedTexts(pugi::xml_node data);
/// The maximum number of levels of categories that are read: the innermost level and eight outer ones.
inline constexpr std::size_t kMostLevels = 9;
/// The texts of each level of a series' categories (c:multiLvlStrCache), the innermost level first. A text of
/// an outer level applies from its point on, up to the next text of that level. Empty if there are no levels.
std::vector<std::map<std::size_t, std::string>> CachedLevels(pugi::xml_node data);
/// The numbers of a series' data, one for each point; Empty for a point without a number.
std::vector<runtime::Variant> CachedNumbers(pugi::xml_node data);
/// The number of points in a series' data.
std::size_t PointCount(pugi::xml_node data);
/// The number of points in all caches of a series.
std::size_t CachedPoints(pugi::xml_node series);

/// Fills an empty cache (c:strCache, c:numCache) with its points.
class CacheWriter {
 public:
  /// `count` is the number of points, including those without a text.
  CacheWriter(pugi::xml_node cache, std::size_t count);
  /// Adds a point by its index, from 0. Points must be added in ascending order.
  void Add(std::size_t index, std::string_view text);

 private:
  pugi::xml_node cache_;
  std::string pointName_, valueName_;
};

}  // namespace plotsmith::xlsx
