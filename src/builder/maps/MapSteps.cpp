#include "builder/maps/MapSteps.h"

#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Documents.h"
#include "common/Messages.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;

void ShowLimitMessage(const IXMLDOMElement& oChartElement) {
  ShowMessage(ReplaceTokens(
      "This chart type is limited to 254 series.\r\nSome data will be dropped from chart '/TKN/'.",
      {GetAttributeText(oChartElement, "name")}));
}

bool FinishMap() {
  mCategoryCount = mCategoryPositions.Count();
  mSeriesCount = mSeriesPositions.Count();
  return mCategoryCount != 0 && mSeriesCount != 0 && !mMapInstructions.empty();
}

DataRows::DataRows(const IXMLDOMElement& oChartElement) {
  const std::int32_t lHeaders = GetAttributeLong(oChartElement, "header-row-count");
  lFirst = GetAttributeLong(oChartElement, "table-top-row") + lHeaders;
  lCount = GetAttributeLong(oChartElement, "table-height") - lHeaders;
}

std::int32_t FirstColumn(const IXMLDOMElement& oGroup) {
  return GetAttributeLong(oGroup.selectSingleNode("column"), "worksheet-column-number");
}

std::int32_t FirstColumnOf(const IXMLDOMElement& oChartElement, const char* sGroup, std::int32_t lNone) {
  const auto oGroup = oChartElement.selectSingleNode(sGroup);
  return oGroup ? FirstColumn(oGroup) : lNone;
}

CPSMapInstruction ColumnSumRule(std::int32_t lColumn) {
  CPSMapInstruction oInstruction;
  oInstruction.SetValueReferenceType(value_reference::kCell);
  oInstruction.SetValuePositionOrConstant(lColumn);
  oInstruction.SetCellValueType(cell::kDouble);
  return oInstruction;
}

void AddPseudoSeriesRule(std::int32_t lRowColumn, std::int32_t lDataColumn, std::int32_t lCellValueType,
                         std::int32_t lColumn, const runtime::Variant& vConstant) {
  auto& oInstruction = mMapInstructions.emplace_back();
  oInstruction.SetRowReferenceType(reference::kByCell);
  oInstruction.SetRowReferencePosition(lRowColumn);
  oInstruction.SetColReferenceType(reference::kFixed);
  oInstruction.SetColReferencePosition(SeriesOfColumn(lDataColumn));
  const bool bConstant = lColumn < 0;
  oInstruction.SetValueReferenceType(bConstant ? value_reference::kConstant : value_reference::kCell);
  oInstruction.SetValuePositionOrConstant(bConstant ? vConstant : runtime::Variant(lColumn));
  oInstruction.SetCellValueType(lCellValueType);
}

std::int32_t PositionOf(const runtime::Variant& vPosition) {
  const auto* lPosition = vPosition.If<std::int32_t>();
  return lPosition == nullptr ? 0 : *lPosition;
}

std::int32_t Numbering::Add(const std::string& sName) {
  const std::string sKey = runtime::UCase(sName);
  ++lCount_;
  oPositions_.Add(sKey, lCount_);
  oNames_.Add(sKey, sName);
  return lCount_;
}

void Numbering::AddPseudo(const std::string& sName) {
  oPositions_.Add(sName, ++lCount_);
  oNames_.Add(sName, sName);
}

std::int32_t Numbering::Put(const std::string& sKey, const std::string& sName) {
  oPositions_.Item(sKey) = ++lCount_;
  oNames_.Item(sKey) = sName;
  return lCount_;
}

bool Numbering::IsNewKey(std::string_view sText, const std::string& sScratch) {
  sKey_ = runtime::UCase(sText, sUpper_);
  vPosition_ = &oPositions_.Item(sKey_);
  if (PositionOf(*vPosition_) < 1) return true;
  oKnown_.Remember(sText, sScratch, PositionOf(*vPosition_));
  return false;
}

void Numbering::Number(std::string_view sName) {
  *vPosition_ = ++lCount_;
  oNames_.Item(sKey_) = sName;
}

}  // namespace plotsmith
