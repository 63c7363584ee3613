#include "pages/frmPSLayoutStrBuck.h"

#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <utility>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "metadata/StrategicBuckets.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "pages/LayoutMessages.h"
#include "runtime/Variant.h"

namespace plotsmith {
namespace {

constexpr const char* kNoSequence = "[none]";
constexpr const char* kNoBuckets = "Please select a 'Strategic Buckets' entry";
constexpr const char* kNoBlock = "Please select a 'Block Represents' entry";

constexpr double kNameWidth = 0.6, kValueWidth = 0.4;  // Shares of the grid's width.

/// Formats a bucket's value like "#,###": rounded to an integer, with thousands separators, and empty for
/// zero.
std::string BucketValueText(double dValue) {
  // Round to the digits that a number shows, so that the error in the last bit of a sum has no effect.
  const double dRounded =
      std::floor(std::abs(runtime::Val(std::string_view(runtime::NumberText(dValue)))) + 0.5);
  if (dRounded == 0) return {};
  // A number shows 15 digits, and zeros after them.
  constexpr int kMostDigits = 15;
  std::array<char, 32> aBuffer;
  const auto oEnd =
      std::to_chars(aBuffer.begin(), aBuffer.end(), dRounded, std::chars_format::scientific, kMostDigits - 1);
  const std::string sNumber(aBuffer.data(), oEnd.ptr);  // Such as "1.23400000000000e+03".
  std::string sDigits = sNumber.substr(0, 1) + sNumber.substr(2, kMostDigits - 1);
  sDigits.resize(static_cast<std::size_t>(std::stoi(sNumber.substr(kMostDigits + 2))) + 1, '0');
  for (std::size_t i = sDigits.size(); i > 3; i -= 3) sDigits.insert(i - 3, ",");
  return dValue < 0 ? "-" + sDigits : sDigits;
}

}  // namespace

frmPSLayoutStrBuck::frmPSLayoutStrBuck(Navigation& oNavigation)
    : LayoutPage("frmPSLayoutStrBuck", oNavigation) {
  optBlockSequence0.SetValue(true);
  cboBucketTables.Click = EventProcedure([this] {
    ShowBuckets();
    Axes.FillLabelAxis(sBucketNameColumn);
    Axes.FillValueAxis(sBucketValueColumn);
  });
  cboSeries.Click = EventProcedure([this] { Legend.Show(cboSeries.ListIndex() >= 1); });
  Comment.Wire(Buttons.cmdNext);
  WireLayout(Buttons, true);
}

void frmPSLayoutStrBuck::FillPage() {
  SetBucketColumns();
  grdBuckets.SetColAlignment(1, forms::ColumnAlignment::flexAlignRightCenter);
  LoadColumnNames();
  colBucketTables = GetBucketCandidates(colTables->Item(sTableID).selectSingleNode("table"));
  FillBucketTables();
  FillCategories();
  FillColors();
  FillBlockSequence();
  NumberFormat.FillNumberFormats();
  RestoreChartSelections();
}

void frmPSLayoutStrBuck::SetBucketColumns() {
  const double dWidth = grdBuckets.ClientWidth();
  grdBuckets.SetColWidth(0, static_cast<std::int32_t>(std::lround(kNameWidth * dWidth)));
  grdBuckets.SetColWidth(1, static_cast<std::int32_t>(std::lround(kValueWidth * dWidth)));
}

void frmPSLayoutStrBuck::FillBucketTables() {
  cboBucketTables.Clear();
  dicBucketIndex = {};
  for (const dom::IXMLDOMDocument2& oDoc : *colBucketTables) {
    const auto oTable = oDoc.selectSingleNode("table");
    cboBucketTables.AddItem(GetAttributeText(oTable, "name"));
    dicBucketIndex.Item(GetAttributeText(oTable, "id")) = cboBucketTables.ListCount() - 1;
  }
  cboBucketTables.SetListIndex(0);
}

void frmPSLayoutStrBuck::FillCategories() { FillList(cboCategories, colLabelColumns); }

void frmPSLayoutStrBuck::FillColors() { FillList(cboSeries, colLabelColumns, kOneColor); }

void frmPSLayoutStrBuck::FillBlockSequence() { FillList(cboBlockSequence, colNumberColumns, kNoSequence); }

void frmPSLayoutStrBuck::ShowBuckets() {
  const auto& oDoc = *std::next(colBucketTables->begin(), cboBucketTables.ListIndex());
  const auto oTable = oDoc.selectSingleNode("table");
  sBucketTableID = GetAttributeText(oTable, "id");
  sBucketNameColumn = GetAttributeText(oTable, "bucket-name-column");
  sBucketValueColumn = GetAttributeText(oTable, "bucket-value-column");
  const auto oBuckets = GetStrategicBuckets(oDoc);
  grdBuckets.SetRows(oBuckets->Count() + 1);
  grdBuckets.SetCols(2);
  grdBuckets.SetTextMatrix(0, 0, sBucketNameColumn);
  grdBuckets.SetTextMatrix(0, 1, sBucketValueColumn);
  std::int32_t lRow = 0;
  for (const auto& [sBucket, vTotal] : *oBuckets) {
    grdBuckets.SetTextMatrix(++lRow, 0, sBucket);
    grdBuckets.SetTextMatrix(lRow, 1, BucketValueText(runtime::CDbl(vTotal)));
  }
  SetBucketColumns();
}

void frmPSLayoutStrBuck::PrepareSelections() { NumberFormat.ShowNumberExample(); }

std::string frmPSLayoutStrBuck::FirstFault() const {
  if (cboBucketTables.ListIndex() < 0) return kNoBuckets;
  if (cboCategories.ListIndex() < 0) return kNoBlock;
  return NumberFormat.IsInvalid() ? kBadNumberFormat : "";
}

forms::Control* frmPSLayoutStrBuck::FocusAfter(const std::string& sMessage) {
  if (sMessage == kNoBuckets) return &cboBucketTables;
  if (sMessage == kNoBlock) return &cboCategories;
  return sMessage == kBadNumberFormat ? &NumberFormat.cboMask : nullptr;
}

void frmPSLayoutStrBuck::RestoreChartSelections() {
  ReportErrors("frmPSLayoutStrBuck.RestoreChartSelections", [this] {
    const std::string sID = GetAttributeText(ChartElement(), "strategic-bucket-table-id");
    RestoreTitle();
    NumberFormat.Restore();
    if (dicBucketIndex.Exists(sID)) cboBucketTables.SetListIndex(runtime::CLng(dicBucketIndex.Item(sID)));
    SelectEntries(cboCategories, ColumnsOf("categories"));
    SelectEntries(cboSeries, ColumnsOf("series"));
    RestoreSortOrder();
    Axes.Restore();
    const auto oLabels = ChartElement().selectSingleNode("data-labels");
    if (oLabels && GetAttributeText(oLabels, "manual-labels") == "yes") {
      chkShowNames.SetValue(forms::CheckBox::kChecked);
    }
    Comment.Restore();
  });
}

void frmPSLayoutStrBuck::RestoreSortOrder() {
  const auto oSortOrder = ChartElement().selectSingleNode("sort-order");
  if (!oSortOrder) return;
  const bool bDescending = GetAttributeText(oSortOrder, "sort") == "descending";
  (bDescending ? optBlockSequence1 : optBlockSequence0).SetValue(true);
  SelectEntries(cboBlockSequence, ColumnsOf("sort-order"));
}

void frmPSLayoutStrBuck::UpdateChartMetadata() {
  ReportErrors("frmPSLayoutStrBuck.UpdateChartMetadata", [this] {
    RemoveChildren({"categories", "series", "values", "sort-order", "axes", "data-labels",
                    "dynamic-attributes", "comment"});
    UpdateTitle();
    NumberFormat.Update();
    ChartElement().setAttribute("strategic-bucket-table-id", sBucketTableID);
    AppendHeadings("categories", "rows", CurrentEntry(cboCategories));
    if (cboSeries.ListIndex() > 0) {
      AppendHeadings("series", "rows", {cboSeries.Text()});
    } else {
      AppendHeadings("series", "none", {});
    }
    AppendColumns("values", {sBucketValueColumn});  // This is a column of the bucket table.
    if (cboBlockSequence.ListIndex() > 0) {
      AppendColumns("sort-order", {cboBlockSequence.Text()})
          .setAttribute("sort", optBlockSequence0.Value() ? "ascending" : "descending");
    }
    Axes.Append();
    AppendElement(ChartElement(), "data-labels")
        .setAttribute("manual-labels", IsChecked(chkShowNames) ? "yes" : "no");
    AppendSettings("dynamic-attributes", {});
    Comment.Append();
  });
}

}  // namespace plotsmith
