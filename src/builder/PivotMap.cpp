#include "builder/PivotMap.h"

#include <string>

#include "builder/BubbleMap.h"
#include "builder/BuilderVariables.h"
#include "builder/CPSMapInstruction.h"
#include "builder/MapSteps.h"
#include "builder/StrategicBucketMap.h"
#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"

namespace plotsmith {

using dom::IXMLDOMElement;

bool BuildPivotMap(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.BuildPivotMap", false, [&] {
    const std::string sType = GetAttributeText(oChartElement, "type");
    if (sType == "bubble") return BuildBubbleMap(oChartElement);
    if (sType == "strategic bucket") return BuildStrBuckMap(oChartElement);
    ResetMap();
    const DataRows oRows(oChartElement);
    const auto oSheet = SheetWithCells(GetAttributeText(oChartElement, "table-worksheet"));
    Numbering oCategoryNumbering(mCategoryPositions, mCategoryNames);
    Numbering oSeriesNumbering(mSeriesPositions, mSeriesNames);
    std::int32_t lCategoryColumn = 0, lSeriesColumn = 0, lValueColumn = 0;
    std::string sCategoriesIn, sSeriesIn, sScratch;

    if (const auto oCategories = oChartElement.selectSingleNode("categories")) {
      sCategoriesIn = GetAttributeText(oCategories, "headings-in");
      for (const IXMLDOMElement& oColumn : oCategories.selectNodes("column")) {
        const std::string sName = GetAttributeText(oColumn, "name");
        const std::int32_t lColumn = GetAttributeLong(oColumn, "worksheet-column-number");
        if (sCategoriesIn == "columns") {
          auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lColumn));
          oInstruction.SetRowReferenceType(reference::kFixed);
          oInstruction.SetRowReferencePosition(oCategoryNumbering.Add(sName));
        } else {
          for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
            oCategoryNumbering.NumberIfNew(GetCellText(*oSheet, lRow, lColumn, sScratch), sScratch);
          }
          lCategoryColumn = lColumn;
        }
        YieldToHost();
      }
    }

    if (const auto oSeries = oChartElement.selectSingleNode("series")) {
      sSeriesIn = GetAttributeText(oSeries, "headings-in");
      for (const IXMLDOMElement& oColumn : oSeries.selectNodes("column")) {
        const std::string sName = GetAttributeText(oColumn, "name");
        const std::int32_t lColumn = GetAttributeLong(oColumn, "worksheet-column-number");
        if (sSeriesIn == "columns") {
          if (oSeriesNumbering.Count() >= kSeriesLimit) {
            ShowLimitMessage(oChartElement);
            break;
          }
          auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lColumn));
          oInstruction.SetColReferenceType(reference::kFixed);
          oInstruction.SetColReferencePosition(oSeriesNumbering.Add(sName));
        } else if (sSeriesIn == "rows") {
          for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
            // Before each row, whether or not it brings a new name: so the message comes also when all rows
            // behind the last name that fits repeat known ones.
            if (oSeriesNumbering.Count() >= kSeriesLimit) {
              ShowLimitMessage(oChartElement);
              break;
            }
            oSeriesNumbering.NumberIfNew(GetCellText(*oSheet, lRow, lColumn, sScratch), sScratch);
          }
          lSeriesColumn = lColumn;
        }
        YieldToHost();
      }
    }

    if (const auto oValues = oChartElement.selectSingleNode("values")) {
      const auto oColumn = oValues.selectSingleNode("column");
      lValueColumn = GetAttributeLong(oColumn, "worksheet-column-number");
      if (mSeriesPositions.Count() == 0) oSeriesNumbering.Add(GetAttributeText(oColumn, "name"));
    }

    if (sCategoriesIn == "columns" && sSeriesIn == "none") {
      const std::int32_t lPosition = oSeriesNumbering.Put("VALUE", "Value");
      for (auto& oInstruction : mMapInstructions) {
        oInstruction.SetColReferenceType(reference::kFixed);
        oInstruction.SetColReferencePosition(lPosition);
      }
    } else if (sCategoriesIn == "rows" && sSeriesIn == "none") {
      auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lValueColumn));
      oInstruction.SetRowReferenceType(reference::kByCell);
      oInstruction.SetRowReferencePosition(lCategoryColumn);
      oInstruction.SetColReferenceType(reference::kFixed);
      oInstruction.SetColReferencePosition(1);
    } else if (sCategoriesIn == "columns") {
      for (auto& oInstruction : mMapInstructions) {
        oInstruction.SetColReferenceType(reference::kByCell);
        oInstruction.SetColReferencePosition(lSeriesColumn);
      }
    } else if (sCategoriesIn == "rows" && sSeriesIn == "columns") {
      for (auto& oInstruction : mMapInstructions) {
        oInstruction.SetRowReferenceType(reference::kByCell);
        oInstruction.SetRowReferencePosition(lCategoryColumn);
      }
    } else if (sCategoriesIn == "rows" && sSeriesIn == "rows") {
      auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lValueColumn));
      oInstruction.SetRowReferenceType(reference::kByCell);
      oInstruction.SetRowReferencePosition(lCategoryColumn);
      oInstruction.SetColReferenceType(reference::kByCell);
      oInstruction.SetColReferencePosition(lSeriesColumn);
    }

    if (FinishMap()) return true;
    ShowComplaint("PSChartBuilder.BuildPivotMap", kEmptyMapComplaint);
    return false;
  });
}

}  // namespace plotsmith
