#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: what a written block still needs before its chart is drawn. Only bubble and
/// strategic bucket charts need anything. From the sort on, `mCategoryPositions` no longer tells the rows.
namespace plotsmith {

/// Bubbles by size, the largest first, so that small ones are drawn over large ones; items of strategic
/// buckets by their sort key. False after an error, which was shown.
bool SortDataSheet(const dom::IXMLDOMElement& oChartElement);
/// Raises bubbles to a five-hundredth of the largest; those without a size too if the chart shows them.
void AdjustBubbleSizes(const dom::IXMLDOMElement& oChartNode);
/// Puts the buckets' own values into the row that was kept for them.
void InsertBucketData(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith
