#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: completes the block of a bubble or strategic bucket chart before it is drawn. After
/// the sort, `mCategoryPositions` no longer contains the rows of the categories.
namespace plotsmith {

/// Sorts bubbles by size, the largest first, so that small bubbles are drawn over large ones, and items of
/// strategic buckets by their sort keys. Shows an error and returns False if that fails.
bool SortDataSheet(const dom::IXMLDOMElement& oChartElement);
/// Raises small bubble sizes to 1/500 of the largest one. Bubbles without a size are raised only if the chart
/// shows them.
void AdjustBubbleSizes(const dom::IXMLDOMElement& oChartNode);
/// Writes the buckets' own values into the first row of the block.
void InsertBucketData(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith
