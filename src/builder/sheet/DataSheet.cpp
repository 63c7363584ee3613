#include "builder/sheet/DataSheet.h"

#include "builder/maps/MapSteps.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/CPSMapInstruction.h"
#include "builder/state/DataBlock.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "runtime/Dictionary.h"
#include "runtime/Strings.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Dictionary;
using runtime::Ref;

namespace {

/// Looks up the position of a cell's text. Consecutive instructions often use the same cell, so the last
/// result for the row is kept.
class CellIndex {
 public:
  CellIndex(excel::Worksheet& oSheet, Dictionary& oPositions) : oSheet_(oSheet), oPositions_(oPositions) {}

  std::int32_t At(std::int32_t lRow, std::int32_t lColumn) {
    if (lRow != lRow_ || lColumn != lColumn_) {
      lRow_ = lRow;
      lColumn_ = lColumn;
      const std::string_view sText = GetCellText(oSheet_, lRow, lColumn, sText_);
      lIndex_ = oKnown_.Find(sText, sText_);
      if (lIndex_ < 1) {
        // Reading an unknown text adds it to the dictionary without a position.
        lIndex_ = PositionOf(oPositions_.Item(runtime::UCase(sText, sUpper_)));
        oKnown_.Remember(sText, sText_, lIndex_);
      }
    }
    return lIndex_;
  }

 private:
  excel::Worksheet& oSheet_;
  Dictionary& oPositions_;
  std::int32_t lRow_ = 0;
  std::int32_t lColumn_ = -1;
  std::int32_t lIndex_ = 0;
  std::string sText_, sUpper_;
  PositionCache oKnown_;
};

/// Returns a text as the rectangle stores it. Bubbles and strategic buckets show a label in its first
/// spelling, and the name of a bucket in the bucket's spelling.
std::string StoredText(const std::string& sText, Dictionary& oFirstSpellings) {
  if (mChartType != "bubble" && mChartType != "strategic bucket") return sText;
  const std::string sKey = runtime::UCase(sText);
  if (mChartType == "strategic bucket" && mSeriesNames.Exists(sKey))
    return runtime::CStr(mSeriesNames.Item(sKey));
  if (oFirstSpellings.Exists(sKey)) return runtime::CStr(oFirstSpellings.Item(sKey));
  oFirstSpellings.Item(sKey) = sText;
  return sText;
}

/// Returns a text that the host doesn't convert to a number, a date or a formula.
std::string AsText(const runtime::Variant& vName) { return "'" + runtime::CStr(vName); }

}  // namespace

std::optional<Rectangle> GetSourceData(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.GetSourceData", std::optional<Rectangle>(), [&] {
    const DataRows oRows(oChartElement);
    const auto oSheet = SheetWithCells(GetAttributeText(oChartElement, "table-worksheet"));
    Rectangle aData(mCategoryCount, mSeriesCount);
    Dictionary oFirstSpellings;
    CellIndex oCategories(*oSheet, mCategoryPositions);
    CellIndex oSeries(*oSheet, mSeriesPositions);
    std::string sScratch;
    for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
      for (const CPSMapInstruction& oRule : mMapInstructions) {
        const std::int32_t lCategory = oRule.RowReferenceType() == reference::kFixed
                                           ? oRule.RowReferencePosition()
                                           : oCategories.At(lRow, oRule.RowReferencePosition());
        const std::int32_t lSeries = oRule.ColReferenceType() == reference::kFixed
                                         ? oRule.ColReferencePosition()
                                         : oSeries.At(lRow, oRule.ColReferencePosition());
        if (lCategory < 1 || lSeries < 1) continue;
        runtime::Variant& vTarget = aData.At(lCategory, lSeries);
        if (oRule.ValueReferenceType() == value_reference::kConstant) {
          vTarget = oRule.ValuePositionOrConstant();
          continue;
        }
        const std::int32_t lColumn = runtime::CLng(oRule.ValuePositionOrConstant());
        if (oRule.CellValueType() == cell::kDouble) {
          vTarget = runtime::Sum(runtime::CDbl(vTarget), GetCellDouble(*oSheet, lRow, lColumn));
        } else {
          vTarget = StoredText(std::string(GetCellText(*oSheet, lRow, lColumn, sScratch)), oFirstSpellings);
        }
      }
    }
    return std::optional<Rectangle>(std::move(aData));
  });
}

bool PopulateDataSheetOffi2007(IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.PopulateDataSheetOffi2007", false, [&] {
    auto aData = GetSourceData(oChartElement);
    if (!aData || !CreateDataSheet()) return false;
    const std::string sID = GetAttributeText(oChartElement, "id");
    const auto oSheet = SheetWithCells(kDataSheet);

    std::int32_t lFirst = 0, lRows = 0, lRow = 1;
    std::string sScratch;
    for (;; lRow = oSheet->NextRowShowing(lRow, data_column::kId, sID)) {
      const std::string_view sOwner = GetCellText(*oSheet, lRow, data_column::kId, sScratch);
      if (sOwner.empty()) break;
      if (sOwner == sID && lRows++ == 0) lFirst = lRow;
      YieldToHost();
    }
    if (lRows == 0) {
      lFirst = lRow;
    } else {
      for (std::int32_t i = lRows - 1; i > mCategoryCount; --i)
        DeleteSheetRow(oSheet, lFirst + mCategoryCount);
      // Rows are inserted above the block's last row, so that references to the block are extended.
      for (std::int32_t i = lRows - 1; i < mCategoryCount; ++i) InsertSheetRow(oSheet, lFirst + lRows - 1);
    }
    if (MoveToDataSheet(lFirst, oChartElement, sID, *aData, oSheet)) return true;
    ShowErrorReport("PSChartBuilder.PopulateDataSheetOffi2007", LastReportedError());
    return false;
  });
}

bool MoveToDataSheet(std::int32_t lStartRow, IXMLDOMElement& oChartElement, const std::string& sID,
                     Rectangle& aData, const Ref<excel::Worksheet>& oSheet) {
  return ReportErrors("PSChartBuilder.MoveToDataSheet", false, [&] {
    oChartElement.setAttribute("data-start-row", lStartRow);
    oSheet->SetCellValueAt(lStartRow, data_column::kId, sID);
    for (const auto& [sKey, vPosition] : mSeriesPositions) {
      const std::int32_t p = PositionOf(vPosition);
      if (p > 0) oSheet->SetCellValueAt(lStartRow, ColumnOfSeries(p), AsText(mSeriesNames.Item(sKey)));
    }
    for (const auto& [sKey, vPosition] : mCategoryPositions) {
      const std::int32_t p = PositionOf(vPosition);
      if (p > 0) oSheet->SetCellValueAt(lStartRow + p, data_column::kId, sID);
      // No test is needed here: a text without a position leaves a single apostrophe in the header row, which
      // has no effect.
      oSheet->SetCellValueAt(lStartRow + p, data_column::kName, AsText(mCategoryNames.Item(sKey)));
    }
    for (std::int32_t r = 1; r <= mCategoryCount; ++r) {
      for (std::int32_t c = 1; c <= mSeriesCount; ++c) {
        oSheet->SetCellValueAt(lStartRow + r, ColumnOfSeries(c), aData.At(r, c));
      }
      YieldToHost();
    }
    std::string sFormat = GetAttributeText(oChartElement, "number-format");
    if (sFormat.empty()) sFormat = "General";
    oSheet
        ->Range(oSheet->Cells(lStartRow, data_column::kName)->Address(),
                oSheet->Cells(lStartRow + mCategoryCount, ColumnOfSeries(mSeriesCount))->Address())
        ->SetNumberFormat(sFormat);
    return true;
  });
}

bool CreateDataSheet() {
  return ReportErrors("PSChartBuilder.CreateDataSheet", false, [] {
    if (SheetExists(kDataSheet)) return true;
    if (CreateSheet(kDataSheet, 1, excel::xlSheetVeryHidden)) return true;
    ShowMessage("Unable to create the chart data worksheet");
    return false;
  });
}

}  // namespace plotsmith
