#include "builder/sheet/DataSheetFinishing.h"

#include "builder/maps/BubbleMap.h"
#include "builder/maps/MapSteps.h"
#include "builder/maps/StrategicBucketMap.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "host/excel/Excel.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// A rectangle of the data sheet and the cell by which it is sorted.
struct SortJob {
  std::int32_t lTop, lBottom, lRight;
  std::int32_t lKeyRow, lKeyColumn;
  std::int32_t lOrder, lHeader;
};

void Sort(const SortJob& oJob) {
  const auto oSheet = SheetWithCells(kDataSheet);
  const auto address = [&](std::int32_t lRow, std::int32_t lColumn) {
    return oSheet->Cells(lRow, lColumn)->Address();
  };
  oSheet->Range(address(oJob.lTop, data_column::kId), address(oJob.lBottom, oJob.lRight))
      ->Sort(oSheet->Cells(oJob.lKeyRow, oJob.lKeyColumn), oJob.lOrder, oJob.lHeader, 1, false,
             excel::xlTopToBottom);
}

}  // namespace

bool SortDataSheet(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.SortDataSheet", false, [&] {
    if (mChartType == "bubble") {
      const Block oBlock(oChartElement);
      Sort({oBlock.lHeaderRow, oBlock.lLastRow, bubble_column::kSize, oBlock.FirstRow(), bubble_column::kSize,
            excel::xlDescending, excel::xlYes});
    } else if (mChartType == "strategic bucket") {
      const auto oSortOrder = oChartElement.selectSingleNode("sort-order");
      if (!oSortOrder) return true;
      // A missing attribute raises an error here.
      const bool bAscending = runtime::CStr(oSortOrder.getAttribute("sort")) == "ascending";
      const Block oBlock(oChartElement);
      Sort({oBlock.FirstRow() + 1, oBlock.lLastRow, oBlock.lLastColumn, oBlock.FirstRow() + 2,
            bucket_column::kSort, bAscending ? excel::xlAscending : excel::xlDescending, excel::xlNo});
    }
    return true;
  });
}

void AdjustBubbleSizes(const IXMLDOMElement& oChartNode) {
  ReportErrors("PSChartBuilder.AdjustBubbleSizes", [&] {
    const bool bShowZero = HasSetting(oChartNode, "static-attributes", "show-zero-bubbles");
    const Block oBlock(oChartNode);
    const auto oSheet = SheetWithCells(kDataSheet);
    // After the sort, the largest value comes first.
    const double dLargest = GetCellDouble(*oSheet, oBlock.FirstRow(), bubble_column::kSize);
    const double dSmallest = dLargest <= 0 ? 1 : dLargest / 500;
    for (std::int32_t lRow = oBlock.FirstRow(); lRow <= oBlock.lLastRow; ++lRow) {
      const double dSize = GetCellDouble(*oSheet, lRow, bubble_column::kSize);
      if (dSize > 0 ? dSize < dSmallest : bShowZero) {
        oSheet->SetCellValueAt(lRow, bubble_column::kSize, dSmallest);
      }
    }
  });
}

void InsertBucketData(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.InsertBucketData", [&] {
    const Block oBlock(oChartElement);
    const auto oSheet = SheetWithCells(kDataSheet);
    for (const auto& [sBucket, vValue] : *mStrategicBuckets) {
      oSheet->SetCellValueAt(oBlock.FirstRow(), ColumnOfSeries(PositionOf(mSeriesPositions.Item(sBucket))),
                             vValue);
      YieldToHost();
    }
  });
}

}  // namespace plotsmith
