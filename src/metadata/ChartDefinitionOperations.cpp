#include "metadata/ChartDefinitionOperations.h"

#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "runtime/Strings.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

constexpr std::string_view kIdPrefix = "VEX_Chart";

// points
constexpr double kFrameStep = 20;
constexpr double kFrameWidth = 420;
constexpr double kFrameHeight = 345;

/// `newName` is only asked for where the old name is found.
template <class NewName>
void RenameColumn(const dom::IXMLDOMDocument2& oDoc, const std::string& sOld, const NewName& newName) {
  for (IXMLDOMElement oColumn : oDoc.selectNodes("//column")) {
    if (GetAttributeText(oColumn, "name") == sOld) oColumn.setAttribute("name", newName());
    // The axes are looked at for each column, so that a definition without columns keeps its labels. A label
    // that the user typed is sticky and stays.
    for (IXMLDOMElement oAxis : oDoc.selectNodes("//axis")) {
      const std::string sType = GetAttributeText(oAxis, "type");
      if ((sType == "value" || sType == "label") && GetAttributeText(oAxis, "label") == sOld &&
          GetAttributeText(oAxis, "sticky") == "no") {
        oAxis.setAttribute("label", newName());
      }
    }
  }
}

}  // namespace

void CreateChartDoc() {
  ReportErrors("PSFunctions.CreateChartDoc", [] {
    oChartDoc = NewXMLDocument();
    auto oChart = oChartDoc.createElement("chart");
    sChartID = NextChartID();
    const std::string sBaseName = "Chart" + sChartID.substr(kIdPrefix.size());
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

std::string NextChartID() {
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

void UpdateChartColumnNames(const std::string& sTableRangeName,
                            const std::vector<std::string>& aOldColumnNames,
                            const std::vector<std::string>& aNewColumnNames) {
  ReportErrors("PSFunctions.UpdateChartColumnNames", [&] {
    RetrieveTableDefinitions();
    if (!colCharts) RetrieveChartDefinitions();
    for (const auto& oDoc : *colCharts) {
      if (GetAttributeText(oDoc.selectSingleNode("chart"), "table-id") == sTableRangeName) {
        for (std::size_t i = 0; i < aOldColumnNames.size(); ++i) {
          RenameColumn(oDoc, aOldColumnNames[i], [&] {
            if (i >= aNewColumnNames.size()) throw runtime::RuntimeError(runtime::error::kSubscript);
            return aNewColumnNames[i];
          });
        }
      }
      SaveChartDefinition(oDoc);
      YieldToHost();
    }
  });
}

}  // namespace plotsmith
