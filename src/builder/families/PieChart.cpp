#include "builder/families/PieChart.h"

#include "builder/looks/ChartAttributes.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/YieldToHost.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

std::int32_t PieTypeOfSum(std::int32_t lSum) {
  switch (lSum) {
    case 1:
      return excel::xl3DPie;
    case 2:
      return excel::xlPieExploded;
    case 3:
      return excel::xl3DPieExploded;
    default:
      return excel::xlPie;
  }
}

}  // namespace

void PopulatePieChart(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.PopulatePieChart", [&] {
    const Block oBlock(oChartElement);
    const std::string sCategories = oBlock.Categories();
    for (std::int32_t c = data_column::kFirstSeries; c <= oBlock.lLastColumn; ++c) {
      const auto oSeries = mChart->SeriesCollection()->NewSeries();
      oSeries->SetXValues(sCategories);
      oSeries->SetValues(oBlock.Values(c));
      if (!oSeries->HasDataLabels()) continue;
      if (const auto oFont = oSeries->DataLabels()->Font()) oFont->SetSize(runtime::Val(mLabelFont.vSize));
    }
  });
}

void SetPieChartAttributes(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.SetPieChartAttributes", [&] {
    ApplyTitle(oChartElement);

    bool bValues = false, bPercentages = false;
    for (const IXMLDOMElement& oLabel : oChartElement.selectNodes("data-labels[1]/data-label")) {
      const std::string sShow = GetAttributeText(oLabel, "show");
      if (sShow == "values") bValues = true;
      if (sShow == "percentages") bPercentages = true;
      YieldToHost();
    }
    if (bValues || bPercentages) {
      mChart->SetChartType(excel::xlPie);  // before any label is applied
      ApplyLabels(bValues ? excel::xlDataLabelsShowValue : excel::xlDataLabelsShowPercent,
                  excel::xlLabelPositionBestFit);
    }

    mChart->SetChartType(PieTypeOfSum(SumOfSettings(oChartElement, {{"3D", 1}, {"exploded", 2}}, true)));
    ApplyLegendVisibility();
    // Unlike other families, a pie has a legend unless a user has deleted it.
    if (mLegendVisibility != "show" && mLegendVisibility != "hide") mChart->SetHasLegend(true);
  });
}

}  // namespace plotsmith
