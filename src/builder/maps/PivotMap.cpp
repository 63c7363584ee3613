#include "builder/maps/PivotMap.h"

#include <string>

#include "builder/maps/BubbleMap.h"
#include "builder/maps/MapSteps.h"
#include "builder/maps/StrategicBucketMap.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/CPSMapInstruction.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// Builds the map of an area, bar, column or pie chart. `headings-in` of categories and series says
/// where the headings are: "columns" makes each listed column a heading, "rows" makes each distinct
/// text in the listed column a heading.
class PivotMap {
 public:
  explicit PivotMap(const IXMLDOMElement& oChartElement)
      : oChartElement_(oChartElement),
        oRows_(oChartElement),
        oSheet_(SheetWithCells(GetAttributeText(oChartElement, "table-worksheet"))) {}

  void NumberCategories() {
    const auto oCategories = oChartElement_.selectSingleNode("categories");
    if (!oCategories) return;
    sCategoriesIn_ = GetAttributeText(oCategories, "headings-in");
    for (const IXMLDOMElement& oColumn : oCategories.selectNodes("column")) {
      const std::int32_t lColumn = ColumnNumber(oColumn);
      if (sCategoriesIn_ == "columns") {
        auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lColumn));
        oInstruction.SetRowReferenceType(reference::kFixed);
        oInstruction.SetRowReferencePosition(oCategoryNumbering_.Add(GetAttributeText(oColumn, "name")));
      } else {
        NumberCategoriesInRows(lColumn);
      }
      YieldToHost();
    }
  }

  void NumberSeries() {
    const auto oSeries = oChartElement_.selectSingleNode("series");
    if (!oSeries) return;
    sSeriesIn_ = GetAttributeText(oSeries, "headings-in");
    for (const IXMLDOMElement& oColumn : oSeries.selectNodes("column")) {
      const std::int32_t lColumn = ColumnNumber(oColumn);
      if (sSeriesIn_ == "columns") {
        if (IsSeriesLimitMet()) break;
        auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lColumn));
        oInstruction.SetColReferenceType(reference::kFixed);
        oInstruction.SetColReferencePosition(oSeriesNumbering_.Add(GetAttributeText(oColumn, "name")));
      } else if (sSeriesIn_ == "rows") {
        NumberSeriesInRows(lColumn);
      }
      YieldToHost();
    }
  }

  /// Stores the column of the values. A chart without listed series has one series with that column's name.
  void TakeValues() {
    const auto oValues = oChartElement_.selectSingleNode("values");
    if (!oValues) return;
    const auto oColumn = oValues.selectSingleNode("column");
    lValueColumn_ = ColumnNumber(oColumn);
    if (mSeriesPositions.Count() == 0) oSeriesNumbering_.Add(GetAttributeText(oColumn, "name"));
  }

  /// Completes the instructions with the missing side, or makes the one instruction that has both sides.
  void CompleteInstructions() {
    if (sCategoriesIn_ == "columns") {
      const bool bOneSeries = sSeriesIn_ == "none";
      const std::int32_t lType = bOneSeries ? reference::kFixed : reference::kByCell;
      const std::int32_t lPosition = bOneSeries ? oSeriesNumbering_.Put("VALUE", "Value") : lSeriesColumn_;
      for (CPSMapInstruction& oInstruction : mMapInstructions) SetSeries(oInstruction, lType, lPosition);
    } else if (sCategoriesIn_ != "rows") {
      return;
    } else if (sSeriesIn_ == "columns") {
      for (CPSMapInstruction& oInstruction : mMapInstructions) SetCategoryByCell(oInstruction);
    } else if (sSeriesIn_ == "none" || sSeriesIn_ == "rows") {
      auto& oInstruction = mMapInstructions.emplace_back(ColumnSumRule(lValueColumn_));
      SetCategoryByCell(oInstruction);
      if (sSeriesIn_ == "none")
        SetSeries(oInstruction, reference::kFixed, 1);
      else
        SetSeries(oInstruction, reference::kByCell, lSeriesColumn_);
    }
  }

 private:
  static std::int32_t ColumnNumber(const IXMLDOMElement& oColumn) {
    return GetAttributeLong(oColumn, "worksheet-column-number");
  }

  void NumberCategoriesInRows(std::int32_t lColumn) {
    for (std::int32_t lRow = oRows_.lFirst; lRow <= oRows_.Last(); ++lRow) {
      oCategoryNumbering_.NumberIfNew(GetCellText(*oSheet_, lRow, lColumn, sScratch_), sScratch_);
    }
    lCategoryColumn_ = lColumn;
  }

  void NumberSeriesInRows(std::int32_t lColumn) {
    for (std::int32_t lRow = oRows_.lFirst; lRow <= oRows_.Last(); ++lRow) {
      // This check runs before each row, even before a row without a new name. The message is also shown if
      // all rows after the last name that fits repeat known names.
      if (IsSeriesLimitMet()) break;
      oSeriesNumbering_.NumberIfNew(GetCellText(*oSheet_, lRow, lColumn, sScratch_), sScratch_);
    }
    lSeriesColumn_ = lColumn;
  }

  /// Returns true, and shows the message, if there is no room for another series.
  bool IsSeriesLimitMet() const {
    if (oSeriesNumbering_.Count() < kSeriesLimit) return false;
    ShowLimitMessage(oChartElement_);
    return true;
  }

  void SetCategoryByCell(CPSMapInstruction& oInstruction) const {
    oInstruction.SetRowReferenceType(reference::kByCell);
    oInstruction.SetRowReferencePosition(lCategoryColumn_);
  }
  static void SetSeries(CPSMapInstruction& oInstruction, std::int32_t lType, std::int32_t lPosition) {
    oInstruction.SetColReferenceType(lType);
    oInstruction.SetColReferencePosition(lPosition);
  }

  const IXMLDOMElement& oChartElement_;
  const DataRows oRows_;
  const runtime::Ref<excel::Worksheet> oSheet_;
  Numbering oCategoryNumbering_{mCategoryPositions, mCategoryNames};
  Numbering oSeriesNumbering_{mSeriesPositions, mSeriesNames};
  std::string sCategoriesIn_, sSeriesIn_;  ///< `headings-in`
  std::int32_t lCategoryColumn_ = 0;       ///< the column whose texts are the categories, if they are in rows
  std::int32_t lSeriesColumn_ = 0;
  std::int32_t lValueColumn_ = 0;
  std::string sScratch_;
};

}  // namespace

bool BuildPivotMap(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.BuildPivotMap", false, [&] {
    const std::string sType = GetAttributeText(oChartElement, "type");
    if (sType == "bubble") return BuildBubbleMap(oChartElement);
    if (sType == "strategic bucket") return BuildStrBuckMap(oChartElement);
    ResetMap();
    PivotMap oMap(oChartElement);
    oMap.NumberCategories();
    oMap.NumberSeries();
    oMap.TakeValues();
    oMap.CompleteInstructions();
    if (FinishMap()) return true;
    ShowComplaint("PSChartBuilder.BuildPivotMap", kEmptyMapComplaint);
    return false;
  });
}

}  // namespace plotsmith
