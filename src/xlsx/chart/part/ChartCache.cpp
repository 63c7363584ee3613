#include "xlsx/chart/part/ChartCache.h"

#include <algorithm>

#include "xlsx/base/Limits.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

pugi::xml_node NumbersOf(pugi::xml_node data) {
  const auto literal = xml::Child(data, "numLit");
  return literal ? literal : xml::Child(data, "numRef", "numCache");
}

std::size_t PointsIn(pugi::xml_node cache) {
  const auto count = schema::IntegerVal(cache, "ptCount", 0);
  return static_cast<std::size_t>(std::clamp<long long>(count, 0, limits::kCachePoints));
}

void SetRaw(pugi::xml_node value, std::string_view text) {
  value.append_child(pugi::node_pcdata).set_value(EncodeXString(text).c_str());
}

void AddTexts(pugi::xml_node cache, std::map<std::size_t, std::string>& texts) {
  for (auto point = xml::Child(cache, "pt"); point; point = xml::NextSame(point)) {
    const long long index = xml::IntegerAttribute(point, "idx", -1);
    if (index >= 0) texts[static_cast<std::size_t>(index)] = CachedText(point);
  }
}

}  // namespace

std::string CachedText(pugi::xml_node holder) { return DecodeXString(xml::Text(xml::Child(holder, "v"))); }

void SetCachedText(pugi::xml_node holder, std::string_view text) {
  pugi::xml_node value = schema::Ensure(holder, "v");
  value.remove_children();
  SetRaw(value, text);
}

std::map<std::size_t, std::string> CachedTexts(pugi::xml_node data) {
  std::map<std::size_t, std::string> texts;
  for (const pugi::xml_node& source : data.children()) {
    AddTexts(source, texts);  // strLit, numLit
    for (const pugi::xml_node& cache : source.children()) AddTexts(cache, texts);
  }
  return texts;
}

std::vector<std::map<std::size_t, std::string>> CachedLevels(pugi::xml_node data) {
  std::vector<std::map<std::size_t, std::string>> levels;
  for (const pugi::xml_node& level :
       xml::Children(xml::Child(data, "multiLvlStrRef", "multiLvlStrCache"), "lvl")) {
    if (levels.size() == kMostLevels) break;
    AddTexts(level, levels.emplace_back());
  }
  return levels;
}

std::vector<Variant> CachedNumbers(pugi::xml_node data) {
  const auto cache = NumbersOf(data);
  std::vector<Variant> numbers(PointsIn(cache));
  for (const pugi::xml_node& point : xml::Children(cache, "pt")) {
    const auto index = static_cast<unsigned long long>(xml::IntegerAttribute(point, "idx", -1));
    const auto number = xml::ParseDouble(CachedText(point));
    if (index < numbers.size() && number) numbers[index] = *number;
  }
  return numbers;
}

std::size_t PointCount(pugi::xml_node data) { return PointsIn(NumbersOf(data)); }

std::size_t CachedPoints(pugi::xml_node series) {
  std::size_t points = 0;
  for (const char* data : {"cat", "val", "xVal", "yVal", "bubbleSize"}) {
    for (const pugi::xml_node& source : xml::Child(series, data).children()) {
      points += PointsIn(source);
      for (const pugi::xml_node& cache : source.children()) points += PointsIn(cache);
    }
  }
  return points;
}

CacheWriter::CacheWriter(pugi::xml_node cache, std::size_t count) : cache_(cache) {
  schema::SetVal(cache, "ptCount", std::to_string(count));
  const std::string prefix(xml::Prefix(cache.name()));
  pointName_ = prefix + "pt";
  valueName_ = prefix + "v";
}

void CacheWriter::Add(std::size_t index, std::string_view text) {
  // The points are the last children, and there may be many. They are appended without a search for their
  // position.
  pugi::xml_node point = cache_.append_child(pointName_.c_str());
  point.append_attribute("idx").set_value(static_cast<unsigned long long>(index));
  SetRaw(point.append_child(valueName_.c_str()), text);
}

}  // namespace plotsmith::xlsx
