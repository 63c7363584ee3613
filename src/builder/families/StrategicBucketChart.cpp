#include "builder/families/StrategicBucketChart.h"

#include <string>
#include <vector>

#include "builder/looks/ChartAttributes.h"
#include "builder/looks/ChartLegend.h"
#include "builder/looks/SeriesColors.h"
#include "builder/maps/StrategicBucketMap.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

constexpr double kFirstModernVersion = 12;
constexpr std::int32_t kRed = 255;
constexpr std::int32_t kMarkSize = 55;  // points

/// Returns the reference to the cells of one row in the columns of the buckets.
std::string BucketCells(const Block& oBlock, std::int32_t lRow) {
  return DataCells(lRow, bucket_column::kFirstBucket, lRow, oBlock.lLastColumn);
}

/// Returns the reference to the bucket names in the header row. In the newer notation a column is one
/// character. The characters just after Z don't give a valid reference, so the host refuses them. The
/// lower-case letters after those refer to the columns from A again.
std::string BucketNames(const Block& oBlock) {
  if (HostVersion(mChart->Application()) <= kLastClassicVersion)
    return BucketCells(oBlock, oBlock.lHeaderRow);
  const auto letter = [](std::int32_t lColumn) {
    std::string sLetter;
    runtime::AppendUtf8(sLetter, static_cast<char32_t>(64 + lColumn));
    return sLetter;
  };
  return DataCellA1(oBlock.lHeaderRow, letter(bucket_column::kFirstBucket)) + ":$" +
         letter(oBlock.lLastColumn) + "$" + std::to_string(oBlock.lHeaderRow);
}

bool HasManualLabels(const IXMLDOMElement& oChartElement) {
  const auto oLabels = oChartElement.selectSingleNode("data-labels");
  return oLabels && GetAttributeText(oLabels, "manual-labels") == "yes";
}

void LabelItem(const Ref<excel::Series>& oSeries, const std::string& sText) {
  oSeries->SetHasDataLabels(true);
  const auto oLabels = oSeries->DataLabels();
  if (oLabels) {
    SetLabelFont(oLabels->Font());
    oLabels->SetAutoScaleFont(SafeBool(mLabelFont.vAutoScale));
    oLabels->SetHorizontalAlignment(excel::xlCenter);
    oLabels->SetVerticalAlignment(excel::xlCenter);
    oLabels->SetPosition(excel::xlLabelPositionCenter);
    oLabels->SetOrientation(excel::xlHorizontal);
  }
  // Below version 12, the item's text is shown only in the buckets in which the item has a value.
  const bool bOnlyValues = HostVersion(mChart->Application()) < kFirstModernVersion;
  const std::vector<runtime::Variant> aValues =
      bOnlyValues ? oSeries->Values() : std::vector<runtime::Variant>();
  for (std::int32_t i = 1; i <= oLabels->Count(); ++i) {
    if (bOnlyValues) {
      const auto lPoint = static_cast<std::size_t>(i) - 1;
      if (lPoint >= aValues.size()) throw runtime::RuntimeError(runtime::error::kSubscript);
      if (runtime::CDbl(aValues[lPoint]) <= 0) continue;
    }
    oLabels->Item(i)->SetText(sText);
  }
}

void PaintItems(SeriesColors& oColors) {
  IgnoreErrors([] { mChart->ChartGroups(1)->SetGapWidth(0); },
               [&] {
                 const auto oCollection = mChart->SeriesCollection();
                 for (std::int32_t i = 1; i <= oCollection->Count(); ++i) {
                   Ref<excel::Series> oSeries;
                   IgnoreErrors([&] { oSeries = oCollection->Item(i); });
                   oColors.Paint(oSeries);
                   IgnoreErrors([&] { oSeries->Border()->SetColor(0); });
                   YieldToHost();
                 }
               });
}

/// Draws no line, but a red dash in each bucket at the bucket's own value, with the value as its label.
void AddBucketSeries(const Block& oBlock, const std::string& sBucketNames) {
  const auto oSeries = mChart->SeriesCollection()->NewSeries();
  oSeries->SetChartType(excel::xlLineMarkers);
  oSeries->SetName(kBucketSeriesName);
  oSeries->SetXValues(sBucketNames);
  oSeries->SetValues(BucketCells(oBlock, oBlock.FirstRow()));
  oSeries->SetMarkerForegroundColor(kRed);
  oSeries->SetMarkerBackgroundColor(kRed);
  oSeries->SetMarkerStyle(excel::xlMarkerStyleDash);
  oSeries->SetMarkerSize(kMarkSize);
  oSeries->Border()->SetLineStyle(excel::xlNone);
  oSeries->ApplyDataLabels(excel::xlDataLabelsShowValue);
  if (!oSeries->HasDataLabels()) return;
  const auto oLabels = oSeries->DataLabels();
  if (!oLabels) return;
  oLabels->SetPosition(excel::xlLabelPositionCenter);
  const auto oFont = oLabels->Font();
  oFont->SetName(mBucketLabelFont.vName);
  oFont->SetFontStyle(mBucketLabelFont.vStyle);
  oFont->SetSize(runtime::Val(mBucketLabelFont.vSize));
  oFont->SetColor(mBucketLabelFont.vColor);
  oFont->SetBackground(excel::xlBackgroundTransparent);
  oLabels->SetAutoScaleFont(SafeBool(mBucketLabelFont.vAutoScale));
}

/// Below version 12 an entry that doesn't fit into the legend can't be deleted. At size 1 all entries fit.
void TakeBucketSeriesOutOfLegend() {
  if (!mChart->HasLegend()) return;
  const bool bOlder = HostVersion(mChart->Application()) < kFirstModernVersion;
  runtime::Variant vSize;
  if (bOlder) {
    vSize = mChart->Legend()->Font()->Size();
    mChart->Legend()->Font()->SetSize(1);
  }
  IgnoreErrors(DeleteLastLegendEntry);
  if (bOlder) mChart->Legend()->Font()->SetSize(vSize);
}

}  // namespace

void PopulateStrBuckChart(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.PopulateStrBuckChart", [&] {
    const Block oBlock(oChartElement);
    const std::string sBucketNames = BucketNames(oBlock);
    const bool bManualLabels = HasManualLabels(oChartElement);
    const auto oSheet = SheetWithCells(kDataSheet);
    SeriesColors oColors;
    std::string sScratch;
    for (std::int32_t lRow = oBlock.FirstRow() + 1; lRow <= oBlock.lLastRow; ++lRow) {
      const std::string sText(GetCellText(*oSheet, lRow, data_column::kName, sScratch));
      const std::string sName(GetCellText(*oSheet, lRow, bucket_column::kLabel, sScratch));
      const auto oSeries = mChart->SeriesCollection()->NewSeries();
      oSeries->SetChartType(excel::xlColumnStacked);
      SetLiteralName(*oSeries, sName);
      oSeries->SetXValues(sBucketNames);
      oSeries->SetValues(BucketCells(oBlock, lRow));
      const auto oFill = runtime::MakeRef<CPSColor>();
      for (const auto read : kFillReads) read(*oSeries, *oFill);
      const bool bRepeated = !oColors.Take(oFill, sName);
      if (bRepeated && mChart->HasLegend()) DeleteLastLegendEntry();
      if (bManualLabels) LabelItem(oSeries, sText);
      YieldToHost();
    }
    PaintItems(oColors);
    AddBucketSeries(oBlock, sBucketNames);
    TakeBucketSeriesOutOfLegend();
  });
}

void SetStrBuckChartAttributes(const IXMLDOMElement& oChartElement) {
  const bool bDrawnLegend = ReportErrors("PSChartBuilder.SetStrBuckChartAttributes", false, [&] {
    ApplyTitle(oChartElement);
    ApplyLegendFromHeadings(oChartElement);
    ClearAxisTitles();
    ApplyAxisTitles(oChartElement, {.bYield = true});
    FinishAxes();
    if (HasManualLabels(oChartElement)) {
      const auto oCollection = mChart->SeriesCollection();
      for (std::int32_t i = 1; i <= oCollection->Count(); ++i) {
        const auto oSeries = oCollection->Item(i);
        if (oSeries->ChartType() == excel::xlColumnStacked) {
          // The items' fonts use the AutoScale setting of the buckets' labels on purpose.
          if (const auto oLabels = oSeries->DataLabels())
            FormatLabels(oLabels, excel::xlLabelPositionCenter, mBucketLabelFont.vAutoScale);
        }
        YieldToHost();
      }
    }
    const bool bDrawn = LegendIsDrawn();
    if (!bDrawn) ApplyLegendVisibility();
    return bDrawn;
  });
  if (bDrawnLegend) ApplyDrawnLegend();
}

}  // namespace plotsmith
