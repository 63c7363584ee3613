#include "builder/maps/StrategicBucketMap.h"

#include <string>

#include "builder/maps/MapSteps.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/CPSMapInstruction.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "metadata/StrategicBuckets.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// Numbers the items in their column. An item with the name of a bucket gets the bucket's spelling.
void NumberItems(const IXMLDOMElement& oChartElement, const DataRows& oRows, excel::Worksheet& oSheet,
                 std::int32_t lItemColumn, Numbering& oItems) {
  std::string sScratch;
  for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
    const std::string_view sText = GetCellText(oSheet, lRow, lItemColumn, sScratch);
    if (oItems.AddIfNew(sText, sScratch)) {
      // The row of the buckets counts as well. The name that reaches the limit gets no number, but its key is
      // in the dictionary, so there is one row more than there are items.
      if (oItems.Count() + 1 >= kSeriesLimit) {
        ShowLimitMessage(oChartElement);
        break;
      }
      if (mSeriesNames.Exists(oItems.Key())) {
        oItems.Number(runtime::CStr(mSeriesNames.Item(oItems.Key())));
      } else {
        oItems.Number(sText);
      }
    }
    YieldToHost();
  }
}

/// Adds the rules for each item's label and sort key, and for the sum of the values of each item and bucket.
void AddBucketRules(const IXMLDOMElement& oChartElement, std::int32_t lItemColumn,
                    std::int32_t lBucketNameColumn, std::int32_t lBucketValueColumn) {
  std::int32_t lLabelColumn = -1;
  if (const auto oSeries = oChartElement.selectSingleNode("series")) {
    if (GetAttributeText(oSeries, "headings-in") == "rows") lLabelColumn = FirstColumn(oSeries);
  }
  AddPseudoSeriesRule(lItemColumn, bucket_column::kLabel, cell::kText, lLabelColumn, "[none]");
  AddPseudoSeriesRule(lItemColumn, bucket_column::kSort, cell::kDouble,
                      FirstColumnOf(oChartElement, "sort-order", -1), 1);
  auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lBucketValueColumn));
  oInstruction.SetRowReferenceType(reference::kByCell);
  oInstruction.SetRowReferencePosition(lItemColumn);
  oInstruction.SetColReferenceType(reference::kByCell);
  oInstruction.SetColReferencePosition(lBucketNameColumn);
}

}  // namespace

bool BuildStrBuckMap(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.BuildStrBuckMap", false, [&] {
    ResetMap();
    Numbering oItems(mCategoryPositions, mCategoryNames);
    Numbering oSeriesNumbering(mSeriesPositions, mSeriesNames);
    oItems.AddPseudo("[-StrategicBuckets-]");
    oSeriesNumbering.AddPseudo("[-BlockColor-]");
    oSeriesNumbering.AddPseudo("[-BlockSort-]");

    const std::string sBucketTable = GetAttributeText(oChartElement, "strategic-bucket-table-id");
    const std::int32_t lBucketNameColumn = GetAttributeLong(oChartElement, "bucket-name-column-position");
    const std::int32_t lBucketValueColumn = GetAttributeLong(oChartElement, "bucket-value-column-position");
    mStrategicBuckets = GetStrategicBuckets(colTables->Item(sBucketTable));
    // The keys are used instead of the names: buckets are charted in capitals.
    for (const auto& oBucket : *mStrategicBuckets) oSeriesNumbering.Add(SafeString(oBucket.key));

    const DataRows oRows(oChartElement);
    const auto oSheet = SheetWithCells(GetAttributeText(oChartElement, "table-worksheet"));
    std::int32_t lItemColumn = 0;  // Column 0 has no cells. Without categories no value has a row.
    if (const auto oCategories = oChartElement.selectSingleNode("categories")) {
      lItemColumn = FirstColumn(oCategories);
      NumberItems(oChartElement, oRows, *oSheet, lItemColumn, oItems);
    }
    AddBucketRules(oChartElement, lItemColumn, lBucketNameColumn, lBucketValueColumn);

    if (FinishMap()) return true;
    ShowMessage(std::string("PSChartBuilder.BuildStrBuckMap") + kLineBreak + kEmptyMapComplaint);
    return false;
  });
}

}  // namespace plotsmith
