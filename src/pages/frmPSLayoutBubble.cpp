#include "pages/frmPSLayoutBubble.h"

#include <array>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "pages/LayoutMessages.h"

namespace plotsmith {
namespace {

constexpr const char* kOneSize = "[all the same size]";
constexpr const char* kNoY = "Please select a 'Vertical (Y-axis)' entry";
constexpr const char* kNoX = "Please select a 'Horizontal (X-axis)' entry";
constexpr const char* kNoBubble = "Please select a 'Bubble Represents' entry";

/// The pictures by the sum of the settings: 1 for 3-D, 2 for quadrants.
constexpr std::array<const char*, 4> kBubblePictures = {"imgBubbleBasic", "imgBubble3DBasic", "imgBubbleQuad",
                                                        "imgBubble3DQuad"};

/// Enables a check box, or disables and unchecks it.
void SetUsable(forms::CheckBox& oBox, bool bUsable) {
  if (!bUsable) oBox.SetValue(forms::CheckBox::kUnchecked);
  oBox.SetEnabled(bUsable);
}

}  // namespace

frmPSLayoutBubble::frmPSLayoutBubble(Navigation& oNavigation)
    : LayoutPage("frmPSLayoutBubble", oNavigation),
      Pictures(*this, nullptr, {kBubblePictures.begin(), kBubblePictures.end()}) {
  for (auto* oBox : {&chkShowZeroBubbles, &chkScaleXAxis, &chkScaleYAxis}) oBox->SetEnabled(false);
  WireControls();
  Comment.Wire(Buttons.cmdNext);
  WireLayout(Buttons, false);
}

void frmPSLayoutBubble::WireControls() {
  lstYValues.Click = EventProcedure([this] { Axes.FillValueAxis(lstYValues.Text()); });
  cboXValues.Click = EventProcedure([this] {
    if (cboXValues.ListIndex() >= 0) Axes.FillLabelAxis(cboXValues.Text());
  });
  cboSeries.Click = EventProcedure([this] { Legend.Show(cboSeries.ListIndex() >= 1); });
  // If all sizes are equal, none is zero or negative.
  cboSizes.Click = EventProcedure([this] { SetUsable(chkShowZeroBubbles, cboSizes.ListIndex() > 0); });
  chk3D.Click = EventProcedure([this] { ShowChartPicture(); });
  chkQuadrants.Click = EventProcedure([this] {
    SetUsable(chkScaleXAxis, IsChecked(chkQuadrants));
    SetUsable(chkScaleYAxis, IsChecked(chkQuadrants));
    ShowChartPicture();
  });
}

void frmPSLayoutBubble::FillPage() {
  LoadColumnNames();
  FillCategories();
  FillColors();
  FillYValues();
  FillSizes();
  FillXValues();
  RestoreChartSelections();
  ShowChartPicture();
}

void frmPSLayoutBubble::FillCategories() { FillList(cboCategories, colLabelColumns); }

void frmPSLayoutBubble::FillColors() { FillList(cboSeries, colLabelColumns, kOneColor); }

void frmPSLayoutBubble::FillYValues() { FillList(lstYValues, colNumberColumns); }

void frmPSLayoutBubble::FillSizes() { FillList(cboSizes, colNumberColumns, kOneSize); }

void frmPSLayoutBubble::FillXValues() { FillList(cboXValues, colNumberColumns); }

void frmPSLayoutBubble::ShowChartPicture() {
  Pictures.Show(kBubblePictures[(IsChecked(chk3D) ? 1u : 0u) + (IsChecked(chkQuadrants) ? 2u : 0u)]);
}

std::string frmPSLayoutBubble::FirstFault() const {
  if (lstYValues.SelCount() == 0) return kNoY;
  if (cboXValues.ListIndex() < 0) return kNoX;
  return cboCategories.ListIndex() < 0 ? kNoBubble : "";
}

forms::Control* frmPSLayoutBubble::FocusAfter(const std::string& sMessage) {
  if (sMessage == kNoY) return &lstYValues;
  if (sMessage == kNoX) return &cboXValues;
  return sMessage == kNoBubble ? &cboCategories : nullptr;
}

void frmPSLayoutBubble::RestoreChartSelections() {
  ReportErrors("frmPSLayoutBubble.RestoreChartSelections", [this] {
    RestoreTitle();
    SelectEntries(cboCategories, ColumnsOf("categories"));
    SelectEntries(cboSeries, ColumnsOf("series"));
    SelectEntries(lstYValues, ColumnsOf("values"));
    SelectEntries(cboXValues, ColumnsOf("x-values"));
    SelectEntries(cboSizes, ColumnsOf("bubble-sizes"));
    Axes.Restore();
    RestoreStyle();
    Comment.Restore();
  });
}

void frmPSLayoutBubble::RestoreStyle() {
  if (HasSetting(ChartElement(), "dynamic-attributes", "3D")) chk3D.SetValue(forms::CheckBox::kChecked);
  for (const auto& oAttribute : ChartElement().selectNodes("static-attributes[1]/attribute")) {
    const std::string sSetting = GetAttributeText(oAttribute, "setting");
    if (sSetting == "quadrants") chkQuadrants.SetValue(forms::CheckBox::kChecked);
    if (sSetting == "autoscale-x") chkScaleXAxis.SetValue(forms::CheckBox::kChecked);
    if (sSetting == "autoscale-y") chkScaleYAxis.SetValue(forms::CheckBox::kChecked);
    if (sSetting == "show-zero-bubbles") chkShowZeroBubbles.SetValue(forms::CheckBox::kChecked);
  }
}

void frmPSLayoutBubble::UpdateChartMetadata() {
  ReportErrors("frmPSLayoutBubble.UpdateChartMetadata", [this] {
    RemoveChildren({"categories", "series", "values", "x-values", "bubble-sizes", "axes", "data-labels",
                    "dynamic-attributes", "static-attributes", "comment"});
    UpdateTitle();
    AppendHeadings("categories", "rows", CurrentEntry(cboCategories));
    if (cboSeries.ListIndex() >= 1) {
      AppendHeadings("series", "rows", {cboSeries.Text()});
    } else {
      AppendHeadings("series", "none", {});
    }
    if (!lstYValues.Text().empty()) AppendColumns("values", {lstYValues.Text()});
    if (!cboXValues.Text().empty()) AppendColumns("x-values", {cboXValues.Text()});
    if (cboSizes.ListIndex() >= 1) AppendColumns("bubble-sizes", {cboSizes.Text()});
    Axes.Append();
    AppendSettings("dynamic-attributes", {{"3D", IsChecked(chk3D)}});
    AppendSettings("static-attributes", {{"show-zero-bubbles", IsChecked(chkShowZeroBubbles)},
                                         {"quadrants", IsChecked(chkQuadrants)},
                                         {"autoscale-x", IsChecked(chkScaleXAxis)},
                                         {"autoscale-y", IsChecked(chkScaleYAxis)}});
    Comment.Append();
  });
}

}  // namespace plotsmith
