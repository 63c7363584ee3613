#include "metadata/NewChart.h"

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/YieldToHost.h"
#include "runtime/Strings.h"

namespace plotsmith {

namespace {

constexpr std::string_view kIdPrefix = "VEX_Chart";

// Lengths are in points.
constexpr double kFrameStep = 20;
constexpr double kFrameWidth = 420;
constexpr double kFrameHeight = 345;

}  // namespace

void CreateChartDoc() {
  ReportErrors("PSFunctions.CreateChartDoc", [] {
    oChartDoc = NewXMLDocument();
    auto oChart = oChartDoc.createElement("chart");
    sChartID = NextChartID();
    const std::string sBaseName = "Chart" + ChartNumber(sChartID);
    std::string sName = sBaseName;
    for (int i = 1; ChartNameInUse(sName); ++i) sName = sBaseName + " (" + std::to_string(i) + ")";
    oChart.setAttribute("ps-chart-schema-version", "2");
    oChart.setAttribute("id", sChartID);
    oChart.setAttribute("name", sName);
    oChart.setAttribute("title", "");
    oChart.setAttribute("type", "unknown");
    oChart.setAttribute("chart-worksheet", "");
    oChart.setAttribute("table-id", "");
    oChart.setAttribute("strategic-bucket-table-id", "");
    oChart.setAttribute("number-format", "");
    oChart.setAttribute("table-corrupted", "no");
    oChart.setAttribute("chart-area-crosshatched", "no");
    oChartDoc.appendChild(oChart);
  });
}

std::string ChartNumber(const std::string& sID) {
  return sID.starts_with(kIdPrefix) ? sID.substr(kIdPrefix.size()) : std::string();
}

std::string NextChartID() {
  colCharts->Count();  // Raises error 91 if no charts are loaded. Otherwise every id would seem to be in use.
  for (int n = 1;; ++n) {
    std::string sID = std::string(kIdPrefix) + std::to_string(n);
    if (!CollectionHasKey(sID, colCharts)) return sID;
  }
}

bool ChartNameInUse(const std::string& sName) {
  return ReportErrors("PSFunctions.ChartNameInUse", false, [&] {
    for (const auto& oDoc : *colCharts) {
      const auto oChart = oDoc.selectSingleNode("chart");
      if (GetAttributeText(oChart, "id") != sChartID &&
          runtime::EqualsIgnoreCase(GetAttributeText(oChart, "name"), sName)) {
        return true;
      }
      YieldToHost();
    }
    return false;
  });
}

void CreateEmptyChart(const std::string& sSheetName, const std::string& sID) {
  ReportErrors("PSFunctions.CreateEmptyChart", [&] {
    const auto oSheet = oWorkbook->Worksheets()->Item(sSheetName);
    const auto oCharts = oSheet->ChartObjects();
    const double dOffset = kFrameStep * oCharts->Count();
    const auto oFrame = oCharts->Add(dOffset, dOffset, kFrameWidth, kFrameHeight);
    oSheet->Shapes()->Item(oFrame->Name())->SetAlternativeText(sID);
    const auto oArea = oFrame->Chart()->ChartArea();
    oArea->Border()->SetLineStyle(0);
    oArea->Interior()->SetColorIndex(excel::xlColorIndexNone);
    colChartObjects->Add(oFrame->Chart(), sID);
  });
}

}  // namespace plotsmith
