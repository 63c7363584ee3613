#include "builder/families/AbcChart.h"

#include <algorithm>
#include <map>
#include <string>

#include "builder/looks/ChartAttributes.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/DataBlock.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

/// Returns the letters of sheet column `c` from 3 to 78; empty for larger numbers. A series after the 78th
/// column keeps the name of the series before it.
std::string NameColumnLetters(std::int32_t c) {
  const auto letter = [](std::int32_t lCode) { return std::string(1, static_cast<char>(lCode)); };
  if (c <= 26) return letter(64 + c);
  if (c <= 52) return "A" + letter(38 + c);
  if (c <= 78) return "B" + letter(12 + c);
  return {};
}

std::int32_t FamilyOffset() {
  if (mChartType == "bar") return 8;
  if (mChartType == "column") return 16;
  return 0;
}

/// Returns the chart type for the sum of the family and the settings. "100%" without "stacked", or a setting
/// that occurs twice, gives plain columns in every family.
std::int32_t ChartTypeOfSum(std::int32_t lSum) {
  static const std::map<std::int32_t, std::int32_t> kTypes = {
      {0, excel::xlArea},
      {1, excel::xl3DArea},
      {2, excel::xlAreaStacked},
      {3, excel::xl3DAreaStacked},
      {6, excel::xlAreaStacked100},
      {7, excel::xl3DAreaStacked100},
      {8, excel::xlBarClustered},
      {9, excel::xl3DBarClustered},
      {10, excel::xlBarStacked},
      {11, excel::xl3DBarStacked},
      {14, excel::xlBarStacked100},
      {15, excel::xl3DBarStacked100},
      {17, excel::xl3DColumnClustered},
      {18, excel::xlColumnStacked},
      {19, excel::xl3DColumnStacked},
      {22, excel::xlColumnStacked100},
      {23, excel::xl3DColumnStacked100},
  };
  const auto oFound = kTypes.find(lSum);
  return oFound == kTypes.end() ? excel::xlColumnClustered : oFound->second;
}

}  // namespace

void PopulateABCChart(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.PopulateABCChart", [&] {
    const Block oBlock(oChartElement);
    // All series and attributes are set on clustered bars. The actual type is set at the end.
    mChart->SetChartType(excel::xlBarClustered);
    const std::string sCategories = oBlock.Categories();
    std::string sName;
    for (std::int32_t c = data_column::kFirstSeries; c <= oBlock.lLastColumn; ++c) {
      if (HostVersion(mChart->Application()) > kLastClassicVersion) {
        const std::string sLetters = NameColumnLetters(c);
        if (!sLetters.empty()) sName = DataCellA1(oBlock.lHeaderRow, sLetters);
      } else {
        sName = DataCell(oBlock.lHeaderRow, c);
      }
      const auto oSeries = mChart->SeriesCollection()->NewSeries();
      oSeries->SetName(sName);
      oSeries->SetXValues(sCategories);
      oSeries->SetValues(oBlock.Values(c));
    }
  });
}

void SetABCChartAttributes(const IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.SetABCChartAttributes", [&] {
    ApplyTitle(oChartElement);
    ApplyLegendFromHeadings(oChartElement);
    ClearAxisTitles();
    ApplyAxisTitles(oChartElement);
    FinishAxes();

    const auto aLabels = oChartElement.selectNodes("data-labels[1]/data-label");
    if (std::any_of(aLabels.begin(), aLabels.end(),
                    [](const auto& oLabel) { return GetAttributeText(oLabel, "show") == "values"; })) {
      ApplyLabels(excel::xlDataLabelsShowValue, excel::xlLabelPositionCenter);
    }

    const std::int32_t lSum = SumOfSettings(oChartElement, {{"3D", 1}, {"stacked", 2}, {"100%", 4}});
    mChart->SetChartType(ChartTypeOfSum(FamilyOffset() + lSum));
    ApplyLegendVisibility();
  });
}

}  // namespace plotsmith
