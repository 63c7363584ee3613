#include "controller/CPlotsmithController.h"

#include <vector>

#include "builder/ChartRefreshDriver.h"
#include "common/App.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/RunVariables.h"
#include "controller/PSController.h"
#include "metadata/ColumnRenaming.h"
#include "runtime/Ref.h"

namespace plotsmith {

using runtime::Ref;

namespace {

/// The host and the name of the first caller are kept for the life of the component.
void SetHostContext(const Ref<excel::Application>& oHost, const std::string& sName) {
  if (oApplication) return;
  oApplication = oHost;
  if (sCustomAppName.empty()) sCustomAppName = sName;
}

/// Returns true if the user is editing a cell or an object. Excel has no query for this, but it then refuses
/// to change Interactive.
bool HostIsEditing(const Ref<excel::Application>& oHost) {
  return ValueOr(true, [&] {
    if (!oHost->Interactive()) return false;
    const bool bInteractive = oHost->Interactive();
    oHost->SetInteractive(!bInteractive);
    oHost->SetInteractive(bInteractive);
    return false;
  });
}

/// Returns the message that forbids a run on the workbook, or null.
const char* Obstacle(const Ref<excel::Application>& oHost) {
  if (!oWorkbook) return "You must have a workbook open to use the Plotsmith.";
  if (oWorkbook->ProtectStructure()) {
    return "This workbook has been protected. To use the Plotsmith you need to turn off Structure "
           "Protection.";
  }
  if (oWorkbook->MultiUserEditing()) {
    return "This is a shared workbook. To use the Plotsmith you need to turn off workbook sharing.";
  }
  if (HostIsEditing(oHost)) {
    return "You are currently editing a cell or object. Please finish editing before using the Plotsmith.";
  }
  return nullptr;
}

void GuardedRun(const char* sOperation, const Ref<excel::Application>& oHost, const std::string& sName,
                const std::string& sHelpFile, std::int32_t lMode) {
  ReportErrors(sOperation, [&] {
    SetHostContext(oHost, sName);
    App.HelpFile = sHelpFile;
    oWorkbook = oHost->ActiveWorkbook();
    if (const char* sObstacle = Obstacle(oHost)) {
      ShowMessage(sObstacle);
    } else {
      ExecuteRun(lMode);
    }
    oWorkbook = nullptr;  // An error leaves it set.
  });
}

}  // namespace

void CPlotsmithController::RunPlotsmith(Ref<excel::Application> oHost, std::string sName,
                                        std::string sHelpFile) {
  GuardedRun("CPlotsmithController.RunPlotsmith", oHost, sName, sHelpFile, 0);
}

void CPlotsmithController::RefreshPlotsmithData(Ref<excel::Application> oHost, std::string sName,
                                                std::string sHelpFile) {
  GuardedRun("CPlotsmithController.RefreshPlotsmithData", oHost, sName, sHelpFile, 1);
}

void CPlotsmithController::RefreshChartsForTable(Ref<excel::Application> oHost,
                                                 std::string& sTableRangeName) {
  ReportErrors("CPlotsmithController.RefreshChartsForTable", [&] {
    SetHostContext(oHost, "");
    if (!oWorkbook) oWorkbook = oHost->ActiveWorkbook();
    PopulateModifiedCharts(sTableRangeName);
  });
}

void CPlotsmithController::UpdateChartColumnNamesForTable(Ref<excel::Application> oHost,
                                                          std::string sTableRangeName,
                                                          std::vector<std::string>& aOldColumnNames,
                                                          std::vector<std::string>& aNewColumnNames) {
  // Error reports of this operation use the shorter name.
  ReportErrors("CPlotsmithController.UpdateChartColumnNames", [&] {
    SetHostContext(oHost, "");
    if (!oWorkbook) oWorkbook = oHost->ActiveWorkbook();
    UpdateChartColumnNames(sTableRangeName, aOldColumnNames, aNewColumnNames);
  });
}

}  // namespace plotsmith
