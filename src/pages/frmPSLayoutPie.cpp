#include "pages/frmPSLayoutPie.h"

#include <array>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "pages/LayoutMessages.h"

namespace plotsmith {
namespace {

constexpr const char* kNoSlice = "Please select a 'Slice Represents' entry";
constexpr const char* kNoSize = "Please select a 'Slice Size' entry";

/// The pictures by the sum of the settings: 1 for 3-D, 2 for exploded.
constexpr std::array<const char*, 4> kPiePictures = {"imgPieBasic", "imgPie3DBasic", "imgPieExplode",
                                                     "imgPie3DExplode"};

}  // namespace

frmPSLayoutPie::frmPSLayoutPie(Navigation& oNavigation)
    : LayoutPage("frmPSLayoutPie", oNavigation),
      Pictures(*this, nullptr, {kPiePictures.begin(), kPiePictures.end()}) {
  optDataLabels2.SetValue(true);
  chk3D.Click = chkExploded.Click = EventProcedure([this] { ShowChartPicture(); });
  Comment.Wire(Buttons.cmdNext);
  WireLayout(Buttons, false);
}

void frmPSLayoutPie::FillPage() {
  LoadColumnNames();
  FillCategoryList();
  FillValueControl();
  NumberFormat.FillNumberFormats();
  RestoreChartSelections();
  ShowChartPicture();
}

void frmPSLayoutPie::FillCategoryList() { FillList(lstCategories, colLabelColumns); }

void frmPSLayoutPie::FillValueControl() { FillList(cboValues, colNumberColumns); }

void frmPSLayoutPie::ShowChartPicture() {
  Pictures.Show(kPiePictures[(IsChecked(chk3D) ? 1u : 0u) + (IsChecked(chkExploded) ? 2u : 0u)]);
}

void frmPSLayoutPie::PrepareSelections() { NumberFormat.ShowNumberExample(); }

std::string frmPSLayoutPie::FirstFault() const {
  if (lstCategories.SelCount() == 0) return kNoSlice;
  if (cboValues.ListIndex() < 0) return kNoSize;
  return NumberFormat.IsInvalid() ? kBadNumberFormat : "";
}

forms::Control* frmPSLayoutPie::FocusAfter(const std::string& sMessage) {
  if (sMessage == kNoSlice) return &lstCategories;
  if (sMessage == kNoSize) return &cboValues;
  return sMessage == kBadNumberFormat ? &NumberFormat.cboMask : nullptr;
}

void frmPSLayoutPie::RestoreChartSelections() {
  ReportErrors("frmPSLayoutPie.RestoreChartSelections", [this] {
    RestoreTitle();
    NumberFormat.Restore();
    SelectEntries(lstCategories, ColumnsOf("categories"));
    SelectEntries(cboValues, ColumnsOf("values"));
    for (const auto& oLabel : ChartElement().selectNodes("data-labels[1]/data-label")) {
      const std::string sShow = GetAttributeText(oLabel, "show");
      if (sShow == "values") optDataLabels0.SetValue(true);
      if (sShow == "percentages") optDataLabels1.SetValue(true);
    }
    for (const auto& oAttribute : ChartElement().selectNodes("dynamic-attributes[1]/attribute")) {
      const std::string sSetting = GetAttributeText(oAttribute, "setting");
      if (sSetting == "3D") chk3D.SetValue(forms::CheckBox::kChecked);
      if (sSetting == "exploded") chkExploded.SetValue(forms::CheckBox::kChecked);
    }
    Comment.Restore();
  });
}

void frmPSLayoutPie::UpdateChartMetadata() {
  // The name in this error report has no point between form and procedure.
  ReportErrors("frmPSLayoutPieUpdateChartMetadata", [this] {
    RemoveChildren(
        {"categories", "series", "values", "axes", "data-labels", "dynamic-attributes", "comment"});
    UpdateTitle();
    NumberFormat.Update();
    AppendHeadings("categories", "rows", CurrentEntry(lstCategories));
    AppendHeadings("series", "none", {});
    if (cboValues.ListIndex() >= 0) AppendColumns("values", {cboValues.Text()});
    AppendDataLabels(optDataLabels0.Value() ? "values" : optDataLabels1.Value() ? "percentages" : "");
    AppendSettings("dynamic-attributes", {{"3D", IsChecked(chk3D)}, {"exploded", IsChecked(chkExploded)}});
    Comment.Append();
  });
}

}  // namespace plotsmith
