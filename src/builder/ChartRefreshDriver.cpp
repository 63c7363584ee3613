#include "builder/ChartRefreshDriver.h"

#include <vector>

#include "builder/SourceValidation.h"
#include "builder/families/AbcChart.h"
#include "builder/families/BubbleChart.h"
#include "builder/families/BubbleQuadrants.h"
#include "builder/families/PieChart.h"
#include "builder/families/StrategicBucketChart.h"
#include "builder/looks/ChartComment.h"
#include "builder/maps/PivotMap.h"
#include "builder/sheet/DataSheet.h"
#include "builder/sheet/DataSheetFinishing.h"
#include "builder/state/BuilderVariables.h"
#include "builder/state/PersistedProperties.h"
#include "common/App.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/YieldToHost.h"
#include "dom/Dom.h"
#include "host/desktop/Desktop.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMElement;

void (*ShowBusyWindow)(std::int32_t lMethodType, const std::string& sChartID) = nullptr;

namespace {

void RunMacro(const char* sMacro, const std::vector<runtime::Variant>& aArguments = {}) {
  IgnoreErrors([&] { oApplication->Run(sMacro, aArguments); });
}

/// Sets manual calculation and turns screen updating off during a run of builds, and restores both at the
/// end.
class QuietHost {
 public:
  void Enter() {
    App.Desktop->SetMousePointer(desktop::kPointerHourglass);
    mSavedCalculation = oApplication->Calculation();
    bCalculationSaved_ = true;
    oApplication->SetCalculation(excel::xlCalculationManual);
    bScreenUpdating_ = oApplication->ScreenUpdating();
    oApplication->SetScreenUpdating(false);
  }

  /// Restores both after an error as well: calculation if Enter has set it, and screen updating unless it was
  /// already off.
  void Leave() {
    IgnoreErrors(
        [&] {
          if (bCalculationSaved_) oApplication->SetCalculation(mSavedCalculation);
        },
        [&] { oApplication->SetScreenUpdating(bScreenUpdating_); },
        [] { App.Desktop->SetMousePointer(desktop::kPointerDefault); });
  }

 private:
  bool bCalculationSaved_ = false;
  bool bScreenUpdating_ = true;
};

void EnsureTablesAndCharts() {
  if (!colTables) RetrieveTableDefinitions();
  if (!colCharts) RetrieveChartDefinitions();
}

/// Runs the task directly up to host version 11, and inside the busy window on newer hosts.
void RunBehindBusyWindow(void (*work)(const std::string&), std::int32_t lWork, const std::string& sID) {
  bool bClassic = true;  // the value for a version that can't be read
  HandleErrors(
      [&] {
        bClassic = HostVersion(oApplication) <= kLastClassicVersion;
        if (bClassic) {
          oApplication->SetInteractive(false);
          work(sID);
          oApplication->SetInteractive(true);
        } else {
          ShowBusyWindow(lWork, sID);
        }
      },
      [&](const runtime::RuntimeError& oErr) {
        ShowMessage(oErr.Description());
        if (bClassic) IgnoreErrors([] { oApplication->SetInteractive(true); });
      });
}

void MarkUnavailable(IXMLDOMElement& oChartElement) {
  const auto oFill = mChart->ChartArea()->Fill();
  oFill->Patterned(excel::msoPatternLightUpwardDiagonal);
  oFill->ForeColor()->SetSchemeColor(15);
  oFill->BackColor()->SetSchemeColor(2);
  oFill->SetVisible(true);
  oChartElement.setAttribute("chart-area-crosshatched", "yes");
}

void DeleteAllSeries() {
  IgnoreErrors([] {
    const auto oCollection = mChart->SeriesCollection();
    std::vector<excel::Ref<excel::Series>> aSeries;
    for (std::int32_t i = 1; i <= oCollection->Count(); ++i) aSeries.push_back(oCollection->Item(i));
    for (const auto& oSeries : aSeries) IgnoreErrors([&] { oSeries->Delete(); });
  });
}

/// Returns false for an unknown chart type.
bool DrawFamily(const IXMLDOMElement& oChartElement) {
  if (mChartType == "area" || mChartType == "bar" || mChartType == "column") {
    PopulateABCChart(oChartElement);
    SetABCChartAttributes(oChartElement);
  } else if (mChartType == "pie") {
    PopulatePieChart(oChartElement);
    SetPieChartAttributes(oChartElement);
  } else if (mChartType == "bubble") {
    AdjustBubbleSizes(oChartElement);
    PopulateBubbleChart(oChartElement);
    SetBubbleChartAttributes(oChartElement);
    SetBubbleChartQuadrants(oChartElement);
  } else if (mChartType == "strategic bucket") {
    InsertBucketData(oChartElement);
    PopulateStrBuckChart(oChartElement);
    SetStrBuckChartAttributes(oChartElement);
  } else {
    return false;
  }
  return true;
}

/// Builds a chart whose definition is valid.
void BuildChart(IXMLDOMElement& oChartElement, bool bCrosshatched) {
  if (!BuildPivotMap(oChartElement)) return;
  if (!PopulateDataSheetOffi2007(oChartElement)) return;
  if (!SortDataSheet(oChartElement)) return;
  RetrievePersistedProperties(oChartElement);
  // Without this, the fonts of the chart would scale with its frame.
  if (!mNewOrCopiedChart) mChart->ChartArea()->SetAutoScaleFont(false);
  if (!DrawFamily(oChartElement)) {
    ShowMessage(std::string("PSChartBuilder.PopulateChart") + kLineBreak + "Unknown chart type");
    return;
  }
  SetChartComment(oChartElement);
  if (mNewOrCopiedChart) {
    mChart->PlotArea()->Interior()->SetColorIndex(excel::xlColorIndexNone);
    mChart->PlotArea()->Border()->SetLineStyle(0);  // LineStyle 0 isn't one of Excel's, and removes the line
  }
  if (bCrosshatched) {
    oChartElement.setAttribute("chart-area-crosshatched", "no");
    mChart->ChartArea()->Interior()->SetColorIndex(excel::xlColorIndexNone);
  }
}

}  // namespace

void RefreshAllCharts() {
  RunBehindBusyWindow([](const std::string&) { PopulateAllCharts(); }, busy::kAllCharts, "");
}

void RefreshChart(const std::string& sID) { RunBehindBusyWindow(PopulateChart, busy::kOneChart, sID); }

void PopulateAllCharts() {
  QuietHost oQuiet;
  ReportErrors("PSChartBuilder.PopulateAllCharts", [&] {
    oQuiet.Enter();
    EnsureTablesAndCharts();
    const auto colAll = colCharts;
    for (const auto& oDoc : *colAll) {
      PopulateChart(GetAttributeText(oDoc.selectSingleNode("chart"), "id"));
      SaveChartDefinition(oDoc);
      YieldToHost();
    }
  });
  oQuiet.Leave();
}

void PopulateModifiedCharts(const std::string& sTableRangeName) {
  QuietHost oQuiet;
  lMethodType = method::kRefresh;  // These charts already exist.
  RunMacro(kRefreshStartedMacro);
  ReportErrors("PSChartBuilder.PopulateModifiedCharts", [&] {
    oQuiet.Enter();
    RetrieveTableDefinitions();
    if (!colCharts) RetrieveChartDefinitions();
    const auto colAll = colCharts;
    for (const auto& oDoc : *colAll) {
      const auto oChartElement = oDoc.selectSingleNode("chart");
      if (GetAttributeText(oChartElement, "table-id") == sTableRangeName ||
          GetAttributeText(oChartElement, "strategic-bucket-table-id") == sTableRangeName) {
        RefreshChart(GetAttributeText(oChartElement, "id"));
      }
      SaveChartDefinition(oDoc);
      YieldToHost();
    }
  });
  oQuiet.Leave();
  RunMacro(kRefreshCompleteMacro);
}

void PopulateChart(const std::string& sID) {
  ReportErrors("PSChartBuilder.PopulateChart", [&] {
    EnsureTablesAndCharts();
    const auto oDoc = colCharts->Item(sID);
    auto oChartElement = oDoc.selectSingleNode("chart");
    mChartType = GetAttributeText(oChartElement, "type");
    const std::string sName = GetAttributeText(oChartElement, "name");
    const bool bCrosshatched = GetAttributeText(oChartElement, "chart-area-crosshatched") == "yes";
    RunMacro(kRefreshStartedMacro, {sID});
    bool bValid = false;
    if (mChartType != "unknown") {
      bValid = ValidateSourceData(oChartElement);
    } else {
      ShowMessage(ReplaceTokens(
          "Chart '/TKN/' has become unavailable because it was changed to an unsupported chart type.",
          {sName}));
    }
    mChart = colChartObjects->Item(sID);
    mNewOrCopiedChart = lMethodType == method::kNew || lMethodType == method::kCopy;
    DeleteAllSeries();
    if (bValid) {
      BuildChart(oChartElement, bCrosshatched);
    } else if (mChart->ChartArea()->Interior()->ColorIndex() == excel::xlColorIndexNone) {
      MarkUnavailable(oChartElement);
    }
  });
}

}  // namespace plotsmith
