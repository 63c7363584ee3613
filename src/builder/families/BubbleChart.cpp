#include "builder/families/BubbleChart.h"

#include "builder/looks/ChartAttributes.h"
#include "builder/looks/ChartLegend.h"
#include "builder/looks/SeriesColors.h"
#include "builder/maps/BubbleMap.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "runtime/Ref.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

/// Makes a series for a row without a colour label, so that series and rows have the same numbers.
void MakePlaceholder(const Ref<excel::Series>& oSeries) {
  const std::string sNowhere = DataCells(1, 1, 1, 1);
  IgnoreErrors([&] { oSeries->SetName(runtime::kNull); }, [&] { oSeries->SetXValues(sNowhere); },
               [&] { oSeries->SetValues(sNowhere); }, [&] { oSeries->SetBubbleSizes(sNowhere); });
}

void LabelBubble(const Ref<excel::Series>& oSeries) {
  Ref<excel::DataLabels> oLabels;
  IgnoreErrors([&] { oSeries->SetHasDataLabels(true); }, [&] { oLabels = oSeries->DataLabels(); });
  if (!oLabels) return;
  IgnoreErrors([&] { oLabels->SetAutoScaleFont(SafeBool(mLabelFont.vAutoScale)); },
               [&] { oLabels->Font()->SetName(mLabelFont.vName); },
               [&] { oLabels->Font()->SetFontStyle(mLabelFont.vStyle); },
               [&] { oLabels->Font()->SetSize(runtime::Val(mLabelFont.vSize)); },
               [&] { oLabels->Font()->SetColor(mLabelFont.vColor); },
               [&] { oLabels->SetHorizontalAlignment(excel::xlCenter); },
               [&] { oLabels->SetVerticalAlignment(excel::xlCenter); },
               [&] { oLabels->SetOrientation(excel::xlHorizontal); });
}

void AddBubble(excel::Worksheet& oSheet, std::int32_t lRow, SeriesColors& oColors) {
  std::string sScratch;
  const std::string sName(runtime::Trim(GetCellText(oSheet, lRow, bubble_column::kColor, sScratch)));
  Ref<excel::Series> oSeries;
  IgnoreErrors([&] { oSeries = mChart->SeriesCollection()->NewSeries(); });
  if (sName.empty()) {
    MakePlaceholder(oSeries);
    return;
  }
  const auto value = [&](std::int32_t lColumn) { return DataCells(lRow, lColumn, lRow, lColumn); };
  IgnoreErrors([&] { SetLiteralName(*oSeries, sName); },
               [&] { oSeries->SetXValues(value(bubble_column::kX)); },
               [&] { oSeries->SetValues(value(bubble_column::kY)); },
               [&] { oSeries->SetBubbleSizes(value(bubble_column::kSize)); });
  const auto oFill = runtime::MakeRef<CPSColor>();
  for (const auto read : kFillReads) IgnoreErrors([&] { read(*oSeries, *oFill); });
  bool bRepeated = false;
  IgnoreErrors([&] { bRepeated = !oColors.Take(oFill, sName); },
               [&] {
                 if (bRepeated && mChart->HasLegend()) DeleteLastLegendEntry();
               });
  LabelBubble(oSeries);
}

/// Sets colours and labels after all series were added, in the order of the rows.
void PaintBubbles(excel::Worksheet& oSheet, std::int32_t lRow, SeriesColors& oColors) {
  const auto oCollection = mChart->SeriesCollection();
  std::string sScratch;
  for (std::int32_t i = 1; i <= oCollection->Count(); ++i, ++lRow) {
    Ref<excel::Series> oSeries;
    IgnoreErrors([&] { oSeries = oCollection->Item(i); });
    const std::string_view sText = GetCellText(oSheet, lRow, data_column::kName, sScratch);
    oColors.Paint(oSeries);
    IgnoreErrors([&] { oSeries->Border()->SetWeight(excel::xlHairline); },
                 [&] { oSeries->DataLabels()->Item(1)->SetText(sText); },
                 [&] { oSeries->DataLabels()->SetPosition(excel::xlLabelPositionCenter); });
  }
}

}  // namespace

void PopulateBubbleChart(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.PopulateBubbleChart", [&] {
    const Block oBlock(oChartElement);
    const bool bClassic = HostVersion(mChart->Application()) <= kLastClassicVersion;
    if (!bClassic) mChart->SetChartType(excel::xlBubble);
    const auto oSheet = SheetWithCells(kDataSheet);
    SeriesColors oColors;
    // From here on, errors are ignored in each statement.
    for (std::int32_t lRow = oBlock.FirstRow(); lRow <= oBlock.lLastRow; ++lRow)
      AddBubble(*oSheet, lRow, oColors);
    if (bClassic) {
      // These versions accept the series of a bubble chart only after a scatter chart.
      IgnoreErrors([] { mChart->SetChartType(excel::xlXYScatter); },
                   [] { mChart->SetChartType(excel::xlBubble); });
    }
    IgnoreErrors([&] { PaintBubbles(*oSheet, oBlock.FirstRow(), oColors); });
  });
}

void SetBubbleChartAttributes(const IXMLDOMElement& oChartElement) {
  const bool bDrawnLegend = ReportErrors("PSChartBuilder.SetBubbleChartAttributes", false, [&] {
    if (mNewOrCopiedChart) {
      mChart->Axes(excel::xlCategory, excel::xlPrimary)->SetHasMajorGridlines(false);
      mChart->Axes(excel::xlValue, excel::xlPrimary)->SetHasMajorGridlines(false);
    }
    ApplyTitle(oChartElement);
    if (const auto oSeries = oChartElement.selectSingleNode("series")) {
      const bool bWanted = GetAttributeText(oSeries, "headings-in") != "none";
      if (mChart->HasLegend() != bWanted) mChart->SetHasLegend(bWanted);
    }
    ClearAxisTitles();
    ApplyAxisTitles(oChartElement, {.bSwitchAxisOn = false, .bSizeThroughVal = false, .bYield = true});
    // "quadrants" is a static setting today, which SetBubbleChartQuadrants reads.
    const std::int32_t lSum = SumOfSettings(oChartElement, {{"3D", 1}, {"quadrants", 2}});
    if (lSum == 1 || lSum == 3) mChart->SetChartType(excel::xlBubble3DEffect);
    if (lSum == 2) mChart->SetChartType(excel::xlBubble);
    const bool bDrawn = LegendIsDrawn();
    if (!bDrawn) ApplyLegendVisibility();
    return bDrawn;
  });
  if (bDrawnLegend) ApplyDrawnLegend();
}

}  // namespace plotsmith
