#include "builder/looks/ChartAttributes.h"

#include "builder/state/BuilderVariables.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Values.h"
#include "common/YieldToHost.h"
#include "runtime/Ref.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Val;

namespace {

const StoredFont& FontOfAxis(std::int32_t lAxis) {
  return lAxis == excel::xlCategory ? mLabelAxisFont : mValueAxisFont;
}

}  // namespace

void ApplyTitle(const IXMLDOMElement& oChartElement) {
  const std::string sTitle = GetAttributeText(oChartElement, "title");
  if (sTitle.empty()) {
    mChart->SetHasTitle(false);
  } else {
    mChart->SetHasTitle(true);
    mChart->ChartTitle()->SetText(sTitle);
  }
}

void ApplyLegendFromHeadings(const IXMLDOMElement& oChartElement) {
  const auto oSeries = oChartElement.selectSingleNode("series");
  if (oSeries) mChart->SetHasLegend(GetAttributeText(oSeries, "headings-in") != "none");
}

void ClearAxisTitles() {
  mChart->Axes(excel::xlValue, excel::xlPrimary)->SetHasTitle(false);
  mChart->Axes(excel::xlCategory, excel::xlPrimary)->SetHasTitle(false);
}

void ApplyAxisTitles(const IXMLDOMElement& oChartElement, const AxisTitleManner& oManner) {
  for (const IXMLDOMElement& oAxisElement : oChartElement.selectNodes("axes[1]/axis")) {
    const std::string sType = GetAttributeText(oAxisElement, "type");
    const std::string sLabel = GetAttributeText(oAxisElement, "label");
    if ((sType == "label" || sType == "value") && !sLabel.empty()) {
      const std::int32_t lAxis = sType == "label" ? excel::xlCategory : excel::xlValue;
      const StoredFont& oStored = FontOfAxis(lAxis);
      if (oManner.bSwitchAxisOn) mChart->SetHasAxis(lAxis, true);
      const auto oAxis = mChart->Axes(lAxis, excel::xlPrimary);
      oAxis->SetHasTitle(true);
      const auto oTitle = oAxis->AxisTitle();
      oTitle->SetText(sLabel);
      const auto oFont = oTitle->Font();
      oFont->SetSize(oManner.bSizeThroughVal ? runtime::Variant(Val(oStored.vSize)) : oStored.vSize);
      oFont->SetName(oStored.vName);
      oFont->SetColor(oStored.vColor);
      oFont->SetFontStyle(oStored.vStyle);
      oTitle->SetAutoScaleFont(SafeBool(oStored.vAutoScale));
    }
    if (oManner.bYield) YieldToHost();
  }
}

void FinishAxes() {
  if (mChart->HasAxis(excel::xlValue)) {
    mChart->Axes(excel::xlValue, excel::xlPrimary)->TickLabels()->SetNumberFormatLinked(true);
  }
  // A title is parallel to its axis, and the axes of a bar chart are exchanged.
  const bool bBar = mChartType == "bar";
  const auto turn = [](std::int32_t lAxis, std::int32_t lOrientation) {
    const auto oAxis = mChart->Axes(lAxis, excel::xlPrimary);
    if (oAxis->HasTitle()) oAxis->AxisTitle()->SetOrientation(lOrientation);
  };
  turn(excel::xlValue, bBar ? excel::xlHorizontal : excel::xlUpward);
  turn(excel::xlCategory, bBar ? excel::xlUpward : excel::xlHorizontal);
}

void SetLiteralName(excel::Series& oSeries, const std::string& sName) {
  oSeries.SetName(sName.starts_with('=') ? "=" + runtime::InQuotes(sName, '"') : sName);
}

void SetLabelFont(const runtime::Ref<excel::Font>& oFont) {
  oFont->SetName(mLabelFont.vName);
  oFont->SetFontStyle(mLabelFont.vStyle);
  oFont->SetSize(Val(mLabelFont.vSize));
  oFont->SetColor(mLabelFont.vColor);
}

void FormatLabels(const runtime::Ref<excel::DataLabels>& oLabels, std::int32_t lPosition,
                  const runtime::Variant& vAutoScale) {
  oLabels->SetPosition(lPosition);
  oLabels->SetAutoScaleFont(SafeBool(vAutoScale));
  SetLabelFont(oLabels->Font());
}

void ApplyLabels(std::int32_t lType, std::int32_t lPosition) {
  const auto oCollection = mChart->SeriesCollection();
  for (std::int32_t i = 1; i <= oCollection->Count(); ++i) {
    const auto oSeries = oCollection->Item(i);
    oSeries->ApplyDataLabels(lType);
    if (const auto oLabels = oSeries->DataLabels()) FormatLabels(oLabels, lPosition, mLabelFont.vAutoScale);
  }
}

std::int32_t SumOfSettings(const IXMLDOMElement& oChartElement, std::initializer_list<SettingWeight> aWeights,
                           bool bYield) {
  std::int32_t lSum = 0;
  for (const IXMLDOMElement& oAttribute : oChartElement.selectNodes("dynamic-attributes[1]/attribute")) {
    const std::string sSetting = GetAttributeText(oAttribute, "setting");
    for (const SettingWeight& oWeight : aWeights) {
      if (oWeight.sSetting == sSetting) lSum += oWeight.lWeight;
    }
    if (bYield) YieldToHost();
  }
  return lSum;
}

void ApplyLegendVisibility() {
  if (mLegendVisibility == "show") {
    mChart->SetHasLegend(true);
    ApplyLegendAttributes();
  } else if (mLegendVisibility == "hide") {
    mChart->SetHasLegend(false);
  }
}

void DeleteLastLegendEntry() {
  const auto oEntries = mChart->Legend()->LegendEntries();
  oEntries->Item(oEntries->Count())->Delete();
}

void ApplyLegendAttributes() {
  runtime::Ref<excel::Legend> oLegend;
  IgnoreErrors([&] { oLegend = mChart->Legend(); }, [&] { oLegend->Font()->SetName(mLegendFont.vName); },
               [&] { oLegend->Font()->SetSize(Val(mLegendFont.vSize)); },
               [&] { oLegend->Font()->SetFontStyle(mLegendFont.vStyle); },
               [&] { oLegend->Font()->SetColor(mLegendFont.vColor); },
               [&] { oLegend->SetAutoScaleFont(mLegendFont.vAutoScale); });
  const bool bPlaced = ValueOr(false, [] { return runtime::CDbl(mLegendPosition) == 0; });
  if (!bPlaced) {
    IgnoreErrors([&] { oLegend->SetPosition(runtime::CLng(Val(mLegendPosition))); });
  } else {
    IgnoreErrors([&] { oLegend->SetTop(Val(std::string_view(runtime::CStr(mLegendTop)))); },
                 [&] { oLegend->SetLeft(Val(std::string_view(runtime::CStr(mLegendLeft)))); });
  }
}

}  // namespace plotsmith
