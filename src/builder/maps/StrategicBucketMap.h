#pragma once

#include <cstdint>

#include "common/PSConstants.h"
#include "dom/Dom.h"

/// Module PSChartBuilder: the map of a strategic bucket chart. The first row contains the buckets' own
/// values, and each of the others contains an item. The series are the items' labels, their sort keys, and
/// the buckets.
namespace plotsmith {

/// The series columns of a strategic bucket chart's block on the data sheet.
namespace bucket_column {
/// The texts of the categories.
inline constexpr std::int32_t kLabel = data_column::kFirstSeries;
/// The sort keys.
inline constexpr std::int32_t kSort = kLabel + 1;
/// The first bucket. The other buckets follow it.
inline constexpr std::int32_t kFirstBucket = kLabel + 2;
}  // namespace bucket_column

/// Fills the map's variables and `mStrategicBuckets` for BuildPivotMap. Returns False if the map is empty.
bool BuildStrBuckMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith
