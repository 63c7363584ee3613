#pragma once

#include <cstdint>

#include "common/PSConstants.h"
#include "dom/Dom.h"

/// Module PSChartBuilder: the map of a strategic bucket chart. A row that will carry the buckets' own values
/// comes first, then a row for each item; the series are the item's label, its sort key, and the buckets.
namespace plotsmith {

/// The series columns of a strategic bucket chart's block on the data sheet.
namespace bucket_column {
inline constexpr std::int32_t kLabel = data_column::kFirstSeries;
inline constexpr std::int32_t kSort = kLabel + 1;
inline constexpr std::int32_t kFirstBucket = kLabel + 2;
}  // namespace bucket_column

/// Called by BuildPivotMap, and fills the same variables and `mStrategicBuckets`.
bool BuildStrBuckMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith
