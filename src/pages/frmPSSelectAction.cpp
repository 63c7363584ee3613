#include "pages/frmPSSelectAction.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "host/desktop/Desktop.h"
#include "metadata/NewChart.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;

namespace {

/// The columns of the grid.
namespace column {
constexpr std::int32_t kName = 0, kType = 1, kChartSheet = 2, kTableSheet = 3;
}  // namespace column

constexpr const char* kHeads[] = {"Chart Name", "Type", "Chart Worksheet", "Table Worksheet"};
constexpr double kWidths[] = {0.4, 0.2, 0.2, 0.2};  // Shares of the grid's width.
constexpr std::int32_t kFirstRow = 1;

/// Returns the shapes of a chart on a sheet: its frame and its comment box.
std::vector<Ref<excel::Shape>> ShapesOfChart(const Ref<excel::Worksheet>& oSheet, const std::string& sID) {
  std::vector<Ref<excel::Shape>> aShapes;
  const auto oShapes = oSheet->Shapes();
  for (std::int32_t i = 1; i <= oShapes->Count(); ++i) {
    const auto oShape = oShapes->Item(i);
    if (oShape->AlternativeText() != sID) continue;
    const std::int32_t lType = oShape->Type();
    if (lType == excel::msoTextBox || lType == excel::msoChart) aShapes.push_back(oShape);
  }
  return aShapes;
}

void DeleteShapesOfChart(const std::string& sID) {
  const auto oSheets = oWorkbook->Worksheets();
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    for (const auto& oShape : ShapesOfChart(oSheets->Item(i), sID)) oShape->Delete();
  }
}

bool IsNameTaken(const std::string& sName) {
  return std::any_of(colCharts->begin(), colCharts->end(), [&](const dom::IXMLDOMDocument2& oDoc) {
    return runtime::EqualsIgnoreCase(GetAttributeText(oDoc.selectSingleNode("chart"), "name"), sName);
  });
}

/// Returns the first unused name of "Copy of Sales", "Copy (1) of Sales", "Copy (2) of Sales", and so on.
std::string NameOfCopy(const std::string& sOldName) {
  std::string sCounter;
  for (int n = 0;; sCounter = "(" + std::to_string(n) + ") ") {
    std::string sNewName = ReplaceTokens("Copy /TKN/of ", {sCounter}) + sOldName;
    if (!IsNameTaken(sNewName)) return sNewName;
    ++n;
  }
}

/// Copies the definition of the selected chart to the document that is being edited.
void EditCopyOfDefinition() {
  const std::string sXml = colCharts->Item(sChartID).xml();
  oChartDoc = NewXMLDocument();
  oChartDoc.loadXML(sXml);
  sTableID = GetAttributeText(ChartElement(), "table-id");
  sChartType = GetAttributeText(ChartElement(), "type");
}

}  // namespace

frmPSSelectAction::frmPSSelectAction(Navigation& oNavigation)
    : Page("frmPSSelectAction", "Select Action", oNavigation, origin::kSelectAction) {
  cmdNew.SetDefault(true);
  cmdCancel.SetCancel(true);
  grdCharts.Click = grdCharts.AfterSelChange = EventProcedure([this] { SelectionChanged(); });
  grdCharts.DblClick = EventProcedure([this] {
    if (grdCharts.SelectedRows() != 1) return;
    if (SheetExists(grdCharts.TextMatrix(grdCharts.SelectedRow(0), column::kTableSheet))) cmdModify_Click();
  });
  cmdNew.Click = EventProcedure([this] { cmdNew_Click(); });
  cmdModify.Click = [this] { cmdModify_Click(); };
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdGoToChart.Click = EventProcedure([this] { GoTo(column::kChartSheet); });
  cmdGoToTable.Click = EventProcedure([this] { GoTo(column::kTableSheet); });
  cmdHelp.Click = EventProcedure([this] { ShowHelp(); });
  cmdCancel.Click = [this] { HandleErrors([this] { Unload(); }, ShowRuntimeError); };
}

void frmPSSelectAction::FillPage() {
  for (std::int32_t lCol = 0; lCol < grdCharts.Cols(); ++lCol) grdCharts.SetTextMatrix(0, lCol, kHeads[lCol]);
  FillChartGrid();
  SelectCurrentChart();
  UpdateButtons();
}

void frmPSSelectAction::FillChartGrid() {
  grdCharts.SetRows(kFirstRow);
  for (const dom::IXMLDOMDocument2& oDoc : *colCharts) {
    const auto oChart = oDoc.selectSingleNode("chart");
    AddChartRow(GetAttributeText(oChart, "id"), GetAttributeText(oChart, "name"),
                GetAttributeText(oChart, "type"), GetAttributeText(oChart, "chart-worksheet"),
                GetAttributeText(oChart, "table-worksheet"));
  }
  if (grdCharts.Rows() > kFirstRow) {
    grdCharts.Select(kFirstRow, column::kName);
    grdCharts.SetSort(forms::SortSetting::flexSortStringNoCaseAscending);
  }
  while (grdCharts.SelectedRows() > 0) grdCharts.SetIsSelected(grdCharts.SelectedRow(0), false);
  for (std::int32_t lCol = 0; lCol < grdCharts.Cols(); ++lCol) {
    grdCharts.SetColWidth(lCol,
                          static_cast<std::int32_t>(std::lround(kWidths[lCol] * grdCharts.ClientWidth())));
  }
}

void frmPSSelectAction::AddChartRow(const std::string& sID, const std::string& sName,
                                    const std::string& sType, const std::string& sChartSheet,
                                    const std::string& sTableSheet) {
  const std::int32_t lRow = grdCharts.Rows();
  grdCharts.SetRows(lRow + 1);
  grdCharts.SetRowData(lRow, sID);
  grdCharts.SetTextMatrix(lRow, column::kName, sName);
  grdCharts.SetTextMatrix(lRow, column::kType, sType);
  grdCharts.SetTextMatrix(lRow, column::kChartSheet, sChartSheet);
  grdCharts.SetTextMatrix(lRow, column::kTableSheet, sTableSheet);
}

void frmPSSelectAction::SelectCurrentChart() {
  if (sChartID.empty()) return;
  for (std::int32_t lRow = kFirstRow; lRow < grdCharts.Rows(); ++lRow) {
    if (grdCharts.RowData(lRow) == sChartID) grdCharts.SetIsSelected(lRow, true);
  }
}

void frmPSSelectAction::SelectionChanged() {
  sChartID = grdCharts.SelectedRows() == 1 ? grdCharts.RowData(grdCharts.SelectedRow(0)) : std::string();
  UpdateButtons();
}

void frmPSSelectAction::UpdateButtons() {
  const std::int32_t lSelected = grdCharts.SelectedRows();
  bool bTableExists = false, bChartReachable = false, bTableReachable = false;
  if (lSelected == 1) {
    const std::int32_t lRow = grdCharts.SelectedRow(0);
    const std::string& sTableSheet = grdCharts.TextMatrix(lRow, column::kTableSheet);
    bTableExists = SheetExists(sTableSheet);
    bChartReachable = SheetIsVisible(grdCharts.TextMatrix(lRow, column::kChartSheet));
    bTableReachable = SheetIsVisible(sTableSheet) && sTableSheet != kDeletedTable;
  }
  cmdModify.SetEnabled(bTableExists);
  cmdCopy.SetEnabled(bTableExists);
  cmdDelete.SetEnabled(lSelected > 0);
  cmdGoToChart.SetEnabled(bChartReachable);
  cmdGoToTable.SetEnabled(bTableReachable);
}

void frmPSSelectAction::cmdNew_Click() {
  lMethodType = method::kNew;
  CreateChartDoc();
  PSJumpToStep(step::kNext, this);
}

void frmPSSelectAction::cmdModify_Click() {
  ReportErrors("frmPSSelectAction.cmdModify_Click", [this] {
    lMethodType = method::kModify;
    EditCopyOfDefinition();
    PSJumpToStep(step::kNext, this);
  });
}

void frmPSSelectAction::cmdCopy_Click() {
  ReportErrors("frmPSSelectAction.cmdCopy_Click", [this] {
    lMethodType = method::kCopy;
    EditCopyOfDefinition();
    const std::string sOldName = GetAttributeText(ChartElement(), "name");
    sChartID = NextChartID();
    const std::string sNewName = NameOfCopy(sOldName);
    ChartElement().setAttribute("id", sChartID);
    ChartElement().setAttribute("name", sNewName);
    PSJumpToStep(step::kNext, this);
  });
}

void frmPSSelectAction::cmdDelete_Click() {
  ReportErrors("frmPSSelectAction.cmdDelete_Click", [this] {
    lMethodType = method::kDelete;
    const std::string sWhich = grdCharts.SelectedRows() > 1 ? "these charts" : "this chart";
    const std::string sQuestion = "Are you sure you want to delete " + sWhich + "?" + kLineBreak +
                                  kLineBreak + "Click 'OK' to delete or 'Cancel' to abort.";
    if (AskOkCancel(sQuestion) == desktop::kCancel) return;
    for (std::int32_t i = 0; i < grdCharts.SelectedRows(); ++i) {
      DeleteShapesOfChart(grdCharts.RowData(grdCharts.SelectedRow(i)));
    }
    colCharts = nullptr;  // The next page then loads the definitions again and drops those without a chart.
    PSJumpToStep(step::kStart, this);
  });
}

void frmPSSelectAction::GoTo(std::int32_t lColumn) {
  if (grdCharts.SelectedRows() != 1) return;
  const std::string sSheet = grdCharts.TextMatrix(grdCharts.SelectedRow(0), lColumn);
  const auto oSheets = oWorkbook->Worksheets();
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    const auto oSheet = oSheets->Item(i);
    if (oSheet->Name() == sSheet) oSheet->Activate();
  }
}

}  // namespace plotsmith
