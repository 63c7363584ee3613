#include "pages/frmPSChartLocation.h"

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "common/Worksheets.h"
#include "metadata/MetadataStore.h"
#include "metadata/NewChart.h"
#include "pages/ChartMetadata.h"
#include "pages/ControlGroups.h"
#include "pages/EventProcedure.h"
#include "runtime/Strings.h"

namespace plotsmith {
namespace {

constexpr std::size_t kLongestSheetName = 31;  // Excel's limit, in UTF-16 units
constexpr std::size_t kLongestName = 255;

constexpr const char* kNoName = "Please provide a name for the chart";
constexpr const char* kNameInUse =
    "Chart name is already in use. Please enter a different name for the chart.";
constexpr const char* kNoSheet = "Please select a sheet from the dropdown";
constexpr const char* kNoSheetName = "Please provide a name for the new worksheet";
constexpr const char* kSheetInUse =
    "Worksheet name is already in use. Please enter a different name for the worksheet.";
constexpr const char* kBadSheetName = "Invalid worksheet name. Please enter a valid name for the worksheet.";

}  // namespace

frmPSChartLocation::frmPSChartLocation(Navigation& oNavigation)
    : Page("frmPSChartLocation", "Chart Location", oNavigation, origin::kChartLocation) {
  WireButtons(Buttons);
  Buttons.cmdFinish.SetDefault(true);
  Buttons.cmdNext.SetEnabled(false);
  Buttons.cmdCancel.Click = [this] { HandleErrors([this] { Unload(); }, ShowRuntimeError); };
  txtSheet.SetMaxLength(kLongestSheetName);
  txtName.SetMaxLength(kLongestName);
  txtName.SetAccessibleName(lblName.Caption());
  txtSheet.SetAccessibleName(optTargetSheet0.Caption());
  cboSheet.SetAccessibleName(optTargetSheet1.Caption());
  optTargetSheet1.SetValue(true);
  optTargetSheet0.Click = optTargetSheet1.Click = EventProcedure([this] { SetSheetControls(); });
}

void frmPSChartLocation::FillPage() {
  PopulateControls();
  SetSheetControls();
}

void frmPSChartLocation::PopulateControls() {
  ReportErrors("frmPSChartLocation.PopulateControls", [this] {
    const std::string sName = GetAttributeText(ChartElement(), "name");
    const std::string sTitle = GetAttributeText(ChartElement(), "title");
    const std::string sChartSheet = GetAttributeText(ChartElement(), "chart-worksheet");
    bNewChart = !CollectionHasKey(sChartID, colCharts);
    FillSheets(sChartSheet);
    if (!bNewChart) {
      optTargetSheet1.SetValue(true);
    } else {
      const std::string sDefault = DefaultSheetName();
      const bool bNamedBefore = !sChartSheet.empty() && cboSheet.Text() != sChartSheet;
      txtSheet.SetText(bNamedBefore ? sChartSheet : sDefault);
      if (bNamedBefore) optTargetSheet0.SetValue(true);
    }
    txtName.SetText(sTitle.empty() ? sName : sTitle);
  });
}

void frmPSChartLocation::FillSheets(const std::string& sChartSheet) {
  cboSheet.Clear();
  const std::string sActive = oWorkbook->ActiveSheet()->Name();
  const auto oSheets = oWorkbook->Worksheets();
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    const auto oSheet = oSheets->Item(i);
    if (oSheet->Visible() != excel::xlSheetVisible) continue;
    const std::string sName = oSheet->Name();
    cboSheet.AddItem(sName);
    // The last condition is already true for the first sheet, so the active sheet is never preferred.
    if ((!sChartSheet.empty() && sChartSheet == sName) || (cboSheet.ListIndex() < 0 && sName == sActive) ||
        cboSheet.ListIndex() < 0) {
      cboSheet.SetListIndex(cboSheet.ListCount() - 1);
    }
  }
}

std::string frmPSChartLocation::DefaultSheetName() const {
  const std::string sBase = "Chart" + ChartNumber(sChartID);
  std::string sName = sBase;
  for (int n = 2; SheetExists(sName); ++n) sName = sBase + " (" + std::to_string(n) + ")";
  return sName;
}

void frmPSChartLocation::SetSheetControls() {
  if (!bNewChart) {
    // An existing chart stays on its sheet.
    optTargetSheet0.SetEnabled(false);
    optTargetSheet1.SetEnabled(false);
  }
  SetInputEnabled(txtSheet, bNewChart && optTargetSheet0.Value());
  SetInputEnabled(cboSheet, bNewChart && optTargetSheet1.Value());
}

std::string frmPSChartLocation::SheetName() const {
  return optTargetSheet0.Value() ? std::string(runtime::Trim(txtSheet.Text())) : cboSheet.Text();
}

std::string frmPSChartLocation::FirstFault(const std::string& sName, const std::string& sSheet) const {
  if (sName.empty()) return kNoName;
  if (!bNewChart) return {};
  if (ChartNameInUse(sName)) return kNameInUse;
  if (optTargetSheet1.Value()) return cboSheet.ListIndex() < 0 ? kNoSheet : "";
  if (sSheet.empty()) return kNoSheetName;
  return SheetExists(sSheet) ? kSheetInUse : "";
}

std::string frmPSChartLocation::PrepareSheet(const std::string& sSheet) const {
  if (!bNewChart || !optTargetSheet0.Value()) {
    if (optTargetSheet1.Value()) oWorkbook->Worksheets()->Item(sSheet)->Activate();
    return {};
  }
  const std::string sActive = oWorkbook->ActiveSheet()->Name();
  if (!CreateSheet(sSheet, 1, excel::xlSheetVisible)) {
    oWorkbook->Sheets()->Item(sActive)->Activate();
    return kBadSheetName;
  }
  oWorkbook->Worksheets()->Item(sSheet)->Activate();
  const auto oWindow = oApplication->ActiveWindow();
  oWindow->SetDisplayGridlines(false);
  oWindow->SetDisplayHeadings(false);
  return {};
}

bool frmPSChartLocation::ValidSelections() {
  bool bResult = false;
  RunEventProcedure([&] { bResult = PlaceChart(); });
  return bResult;
}

bool frmPSChartLocation::PlaceChart() {
  const std::string sName(runtime::Trim(txtName.Text()));
  const std::string sSheet = SheetName();
  std::string sMessage = FirstFault(sName, sSheet);
  if (sMessage.empty()) sMessage = PrepareSheet(sSheet);
  if (!sMessage.empty()) {
    DisplayMessage(sMessage);
    return false;
  }
  UpdateChartMetadata(sSheet);
  SaveChartDefinition(oChartDoc);
  if (bNewChart) CreateEmptyChart(sSheet, sChartID);
  if (CollectionHasKey(sChartID, colCharts)) colCharts->Remove(sChartID);
  colCharts->Add(oChartDoc, sChartID);
  return true;
}

void frmPSChartLocation::UpdateForBack() { UpdateChartMetadata(SheetName()); }

void frmPSChartLocation::UpdateChartMetadata(const std::string& sSheetName) {
  ReportErrors("frmPSChartLocation.UpdateChartMetadata", [&] {
    ChartElement().setAttribute("name", runtime::Trim(txtName.Text()));
    ChartElement().setAttribute("chart-worksheet", sSheetName);
  });
}

forms::Control* frmPSChartLocation::FocusAfter(const std::string& sMessage) {
  if (sMessage == kNoName || sMessage == kNameInUse) return &txtName;
  if (sMessage == kNoSheetName || sMessage == kSheetInUse || sMessage == kBadSheetName) return &txtSheet;
  return sMessage == kNoSheet ? &cboSheet : nullptr;
}

}  // namespace plotsmith
