#include "builder/PivotMap.h"

#include <string>

#include "builder/BuilderVariables.h"
#include "common/CommonFunctions.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Dictionary;

namespace {

constexpr std::int32_t kMostSeries = 254;
constexpr const char* kLimitMessage =
    "This chart type is limited to 254 series.\r\nSome data will be dropped from chart '/TKN/'.";

/// One dimension of the rectangle while its headings are numbered, in order of first appearance.
class Numbering {
 public:
  Numbering(Dictionary& oPositions, Dictionary& oNames) : oPositions_(oPositions), oNames_(oNames) {}

  std::int32_t Count() const { return lCount_; }

  /// A listed heading: one that is there already, ignoring case, is an error.
  std::int32_t Add(const std::string& sName) {
    const std::string sKey = runtime::UCase(sName);
    ++lCount_;
    oPositions_.Add(sKey, lCount_);
    oNames_.Add(sKey, sName);
    return lCount_;
  }

  /// A heading found in a row; `sScratch` is where its text lies if the sheet doesn't hold it.
  void Find(std::string_view sText, const std::string& sScratch) {
    if (oKnown_.Find(sText, sScratch) >= 1) return;
    const std::string_view sKey = runtime::UCase(sText, sUpper_);
    runtime::Variant& vPosition = oPositions_.Item(sKey);
    if (PositionOf(vPosition) < 1) {
      vPosition = ++lCount_;
      oNames_.Item(sKey) = sText;
    }
    oKnown_.Remember(sText, sScratch, PositionOf(vPosition));
  }

  /// Gives the name the next number, whatever it had before.
  std::int32_t Put(const std::string& sKey, const std::string& sName) {
    oPositions_.Item(sKey) = ++lCount_;
    oNames_.Item(sKey) = sName;
    return lCount_;
  }

 private:
  Dictionary& oPositions_;
  Dictionary& oNames_;
  std::int32_t lCount_ = 0;
  std::string sUpper_;
  PositionCache oKnown_;
};

void ShowLimitMessage(const IXMLDOMElement& oChartElement) {
  ShowMessage(ReplaceTokens(kLimitMessage, {GetAttributeText(oChartElement, "name")}));
}

/// A rule that adds up the numbers of one sheet column.
CPSMapInstruction SumOfColumn(std::int32_t lColumn) {
  CPSMapInstruction oInstruction;
  oInstruction.SetValueReferenceType(value_reference::kCell);
  oInstruction.SetValuePositionOrConstant(lColumn);
  oInstruction.SetCellValueType(cell_value::kNumber);
  return oInstruction;
}

}  // namespace

DataRows::DataRows(const IXMLDOMElement& oChartElement) {
  const std::int32_t lHeaders = GetAttributeLong(oChartElement, "header-row-count");
  lFirst = GetAttributeLong(oChartElement, "table-top-row") + lHeaders;
  lCount = GetAttributeLong(oChartElement, "table-height") - lHeaders;
}

std::int32_t PositionOf(const runtime::Variant& vPosition) {
  const auto* lPosition = vPosition.If<std::int32_t>();
  return lPosition == nullptr ? 0 : *lPosition;
}

bool BuildPivotMap(const IXMLDOMElement& oChartElement) {
  return ReportErrors("PSChartBuilder.BuildPivotMap", false, [&] {
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
          auto& oInstruction = mMapInstructions.emplace_back(SumOfColumn(lColumn));
          oInstruction.SetRowReferenceType(reference::kFixed);
          oInstruction.SetRowReferencePosition(oCategoryNumbering.Add(sName));
        } else {
          for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
            oCategoryNumbering.Find(GetCellText(*oSheet, lRow, lColumn, sScratch), sScratch);
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
          if (oSeriesNumbering.Count() >= kMostSeries) {
            ShowLimitMessage(oChartElement);
            break;
          }
          auto& oInstruction = mMapInstructions.emplace_back(SumOfColumn(lColumn));
          oInstruction.SetColReferenceType(reference::kFixed);
          oInstruction.SetColReferencePosition(oSeriesNumbering.Add(sName));
        } else if (sSeriesIn == "rows") {
          for (std::int32_t lRow = oRows.lFirst; lRow <= oRows.Last(); ++lRow) {
            // Before each row, whether or not it brings a new name: so the message comes also when all rows
            // behind the last name that fits repeat known ones.
            if (oSeriesNumbering.Count() >= kMostSeries) {
              ShowLimitMessage(oChartElement);
              break;
            }
            oSeriesNumbering.Find(GetCellText(*oSheet, lRow, lColumn, sScratch), sScratch);
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
      auto& oInstruction = mMapInstructions.emplace_back(SumOfColumn(lValueColumn));
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
      auto& oInstruction = mMapInstructions.emplace_back(SumOfColumn(lValueColumn));
      oInstruction.SetRowReferenceType(reference::kByCell);
      oInstruction.SetRowReferencePosition(lCategoryColumn);
      oInstruction.SetColReferenceType(reference::kByCell);
      oInstruction.SetColReferencePosition(lSeriesColumn);
    }

    mCategoryCount = mCategoryPositions.Count();
    mSeriesCount = mSeriesPositions.Count();
    if (mCategoryCount == 0 || mSeriesCount == 0 || mMapInstructions.empty()) {
      ShowComplaint("PSChartBuilder.BuildPivotMap", "Failed to populate a data definition collection");
      return false;
    }
    return true;
  });
}

}  // namespace plotsmith
