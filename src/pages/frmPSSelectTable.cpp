#include "pages/frmPSSelectTable.h"

#include <algorithm>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "metadata/NewChart.h"
#include "metadata/StrategicBuckets.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"

namespace plotsmith {
namespace {

constexpr const char* kSelectTable = "Please select the table on which the chart is based";
constexpr const char* kSelectType = "Please select a chart type";
constexpr const char* kTableGone =
    "The table used by this chart no longer exists in this workbook. You must select a different table to "
    "continue.";
constexpr const char* kTableInvalid =
    "Table '/TKN/' is not currently valid for this chart. You must select a different table to continue.";

constexpr const char* kUnknownType = "unknown";
/// The chart types in the order of their options. The last one needs a bucket table.
constexpr std::array<const char*, 6> kTypes = {"bar", "column", "area", "pie", "bubble", "strategic bucket"};
constexpr std::size_t kBucketType = 5;

// Lengths are in points.
constexpr double kFrameWidth = 320, kFrameHeight = 150, kPictureWidth = 120, kPictureHeight = 90;

}  // namespace

frmPSSelectTable::frmPSSelectTable(Navigation& oNavigation)
    : Page("frmPSSelectTable", "Source Table and Chart Type", oNavigation, origin::kSelectTable) {
  WireButtons(Buttons);
  Buttons.cmdNext.SetDefault(true);
  fraChartType.SetPlace({0, 0, kFrameWidth, kFrameHeight});
  for (const auto& oImage : Pictures.Images()) oImage->SetPlace({0, 0, kPictureWidth, kPictureHeight});
  for (auto& oOption : optType) {
    oOption.Click = EventProcedure([this, &oOption] { SetChartType(*oOption.Index()); });
  }
  grdTables.Click = grdTables.AfterSelChange = EventProcedure([this] { UpdateChartTypes(); });
  grdTables.DblClick = EventProcedure([this] { Buttons.cmdNext.UserPress(); });
}

void frmPSSelectTable::FillPage() {
  Buttons.cmdBack.SetEnabled(colCharts->Count() > 0);
  PlacePictures();
  FillTableGrid();
  RunEventProcedure([this] { UpdateChartTypes(); });
  CheckTableStillValid();
}

// Places all samples to the right of the options.
void frmPSSelectTable::PlacePictures() {
  const forms::Place oFrame = fraChartType.Place(), oArea = {0, 0, kPictureWidth, kPictureHeight};
  const forms::Place oPlace = {(oFrame.Width - oArea.Width) / 2 + 0.1 * oFrame.Width,
                               (oFrame.Height - oArea.Height) / 2, oArea.Width, oArea.Height};
  for (const auto& oImage : Pictures.Images()) oImage->SetPlace(oPlace);
}

void frmPSSelectTable::FillTableGrid() {
  grdTables.SetRows(0);
  for (const dom::IXMLDOMDocument2& oDoc : *colTables) {
    const auto oTable = oDoc.selectSingleNode("table");
    AddTableRow(GetAttributeText(oTable, "name"), GetAttributeText(oTable, "id"));
  }
  if (grdTables.Rows() > 0) {
    grdTables.Select(0, 0);
    grdTables.SetSort(forms::SortSetting::flexSortGenericAscending);
  }
  while (grdTables.SelectedRows() > 0) grdTables.SetIsSelected(grdTables.SelectedRow(0), false);
  if (sTableID.empty()) return;
  for (std::int32_t lRow = 0; lRow < grdTables.Rows(); ++lRow) {
    if (grdTables.RowData(lRow) != sTableID) continue;
    grdTables.SetIsSelected(lRow, true);
    sTableName = grdTables.TextMatrix(lRow, 0);
  }
}

void frmPSSelectTable::AddTableRow(const std::string& sName, const std::string& sID) {
  const std::int32_t lRow = grdTables.Rows();
  grdTables.SetRows(lRow + 1);
  grdTables.SetRowData(lRow, sID);
  grdTables.SetTextMatrix(lRow, 0, sName);
}

void frmPSSelectTable::UpdateChartTypes() {
  const auto lType = std::find(kTypes.begin(), kTypes.end(), sChartType);
  std::int32_t iIndex = lType == kTypes.end() ? -1 : static_cast<std::int32_t>(lType - kTypes.begin());
  for (auto& oOption : optType) {
    if (oOption.Value()) iIndex = *oOption.Index();
    oOption.SetEnabled(false);
    oOption.SetValue(false);
  }
  SetChartType(-1);
  if (grdTables.SelectedRows() == 1) sTableID = grdTables.RowData(grdTables.SelectedRow(0));
  bTableUsable = false;
  if (!sTableID.empty()) EnableChartTypes();
  if (iIndex < 0 || !optType[static_cast<std::size_t>(iIndex)].Enabled()) return;
  optType[static_cast<std::size_t>(iIndex)].SetValue(true);
  SetChartType(iIndex);
}

void frmPSSelectTable::EnableChartTypes() {
  const auto oTable = colTables->Item(sTableID).selectSingleNode("table");
  const std::int32_t lLabels = GetAttributeLong(oTable, "label-column-count");
  const std::int32_t lNumbers = GetAttributeLong(oTable, "number-column-count");
  if (lLabels < 1 || lNumbers < 1) return;
  for (std::size_t i = 0; i < kBucketType; ++i) optType[i].SetEnabled(true);
  bTableUsable = true;
  // A strategic bucket chart takes buckets from one label column and blocks from another one.
  if (lLabels >= 2 && GetBucketCandidates(oTable)->Count() > 0) optType[kBucketType].SetEnabled(true);
}

void frmPSSelectTable::SetChartType(std::int32_t iIndex) {
  const auto& aImages = Pictures.Images();
  const bool bKnown = iIndex >= 0 && iIndex < static_cast<std::int32_t>(kTypes.size());
  sChartType = bKnown ? kTypes[static_cast<std::size_t>(iIndex)] : kUnknownType;
  Pictures.Show(bKnown ? aImages[static_cast<std::size_t>(iIndex)]->Name() : std::string());
}

void frmPSSelectTable::CheckTableStillValid() {
  if (lMethodType != method::kModify && lMethodType != method::kCopy) return;
  if (GetAttributeText(ChartElement(), "table-worksheet") == kDeletedTable) {
    DisplayMessage(kTableGone);
  } else if (GetAttributeText(ChartElement(), "table-corrupted") == "yes" || !bTableUsable) {
    DisplayMessage(ReplaceTokens(kTableInvalid, {sTableName}));
  }
}

bool frmPSSelectTable::ValidSelections() {
  if (!sPendingMessage.empty()) return false;  // The page shows the message when it opens.
  if (sTableID.empty()) {
    DisplayMessage(kSelectTable);
    return false;
  }
  if (sChartType == kUnknownType) {
    DisplayMessage(kSelectType);
    return false;
  }
  UpdateChartMetadata();
  return true;
}

void frmPSSelectTable::UpdateChartMetadata() {
  ReportErrors("frmPSSelectTable.UpdateChartMetadata", [] {
    if (!oChartDoc) CreateChartDoc();
    ChartElement().setAttribute("type", sChartType);
    ChartElement().setAttribute("table-id", sTableID);
    ChartElement().setAttribute("table-corrupted", "no");
  });
}

// A message that contains the name of a table doesn't move the focus, because it isn't compared with its
// template.
forms::Control* frmPSSelectTable::FocusAfter(const std::string& sMessage) {
  const bool bAboutTable = sMessage == kSelectTable || sMessage == kTableGone || sMessage == kTableInvalid;
  return bAboutTable ? &grdTables : nullptr;
}

}  // namespace plotsmith
