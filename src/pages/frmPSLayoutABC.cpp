#include "pages/frmPSLayoutABC.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "pages/LayoutMessages.h"
#include "runtime/Strings.h"

namespace plotsmith {
namespace {

/// The texts of the page for one chart type.
struct TypeTexts {
  const char* sType;
  std::int32_t lHelpTopic;
  const char* sPicture;  ///< The common part of its pictures' names, after "img".
  const char* sCategoriesCaption;
  const char* sSizeCaption;
  const char* sLabelsCaption;
  const char* sShowValuesCaption;
  const char* sStackedCaption;
  const char* sNoCategories;
  const char* sNoSize;
  const char* sSameEntry;
};

constexpr const char* kHorizontalShows = "2. Horizontal (X-axis) Shows";
constexpr const char* kNoHorizontal = "Please select a 'Horizontal (X-axis) Shows' entry";
constexpr const char* kNoVertical = "Please select a 'Vertical (Y-axis) Shows' entry";
constexpr const char* kSameHorizontal =
    "You cannot use the same entry for the 'Horizontal (X-axis) Shows'\r\nand 'A Color Represents' "
    "selections";
constexpr const char* kSameVertical =
    "You cannot use the same entry for the 'Vertical (Y-axis) Shows'\r\nand 'A Color Represents' selections";

constexpr std::array<TypeTexts, 3> kTypes = {{
    {"area", 5, "Area", kHorizontalShows, "4. Area Size", "5. Area and Axis Labels", "Show Values on Areas",
     "Stacked Areas", kNoHorizontal, "Please select an 'Area Size' entry", kSameHorizontal},
    {"bar", 3, "Bar", "2. Vertical (Y-axis) Shows", "4. Bar Length", "5. Bar and Axis Labels",
     "Show Values on Bars", "Stacked Bars", kNoVertical, "Please select a 'Bar Length' entry", kSameVertical},
    {"column", 4, "Column", kHorizontalShows, "4. Column Height", "5. Column and Axis Labels",
     "Show Values on Columns", "Stacked Columns", kNoHorizontal, "Please select a 'Column Height' entry",
     kSameHorizontal},
}};

const TypeTexts& TextsOfType() {
  const auto oFound = std::find_if(kTypes.begin(), kTypes.end(),
                                   [](const TypeTexts& oTexts) { return oTexts.sType == sChartType; });
  return oFound == kTypes.end() ? kTypes.back() : *oFound;
}

/// The pictures by the sum of the settings: 1 for 3-D, 2 for stacked, 4 for 100%, 8 for several colours.
struct StylePicture {
  int lCode;
  const char* sName;
};
constexpr StylePicture kStylePictures[] = {{0, "Basic"},     {1, "3DBasic"},    {8, "Cluster"},
                                           {9, "3DCluster"}, {10, "Stack"},     {11, "3DStack"},
                                           {14, "Stack100"}, {15, "3DStack100"}};

std::string PictureName(const TypeTexts& oTexts, const StylePicture& oPicture) {
  return std::string("img") + oTexts.sPicture + oPicture.sName;
}

std::vector<std::string> PictureNames() {
  std::vector<std::string> aNames;
  for (const TypeTexts& oTexts : kTypes) {
    for (const StylePicture& oPicture : kStylePictures) aNames.push_back(PictureName(oTexts, oPicture));
  }
  return aNames;
}

void ClearSelections(forms::ListBox& oList) {
  for (std::int32_t i = 0; i < oList.ListCount(); ++i) oList.SetSelected(i, false);
}

/// Selects the entries with these names, ignoring case.
void AddSelections(forms::ListBox& oList, const std::vector<std::string>& aNames) {
  for (std::int32_t i = 0; i < oList.ListCount(); ++i) {
    const auto isEntry = [&](const std::string& sName) {
      return runtime::EqualsIgnoreCase(oList.List(i), sName);
    };
    if (std::any_of(aNames.begin(), aNames.end(), isEntry)) oList.SetSelected(i, true);
  }
}

std::vector<std::string> SelectedTexts(const forms::ListBox& oList) {
  std::vector<std::string> aTexts;
  for (std::int32_t i = 0; i < oList.ListCount(); ++i) {
    if (oList.Selected(i)) aTexts.push_back(oList.List(i));
  }
  return aTexts;
}

/// Disables a combo box and removes its current entry.
void SwitchOff(forms::ComboBox& oCombo) {
  SetInputEnabled(oCombo, false);
  oCombo.SetListIndex(-1);
}

void SwitchOff(forms::ListBox& oList) {
  SetInputEnabled(oList, false);
  ClearSelections(oList);
}

}  // namespace

frmPSLayoutABC::frmPSLayoutABC(Navigation& oNavigation)
    : LayoutPage("frmPSLayoutABC", oNavigation), Pictures(*this, nullptr, PictureNames()) {
  optCategories1.SetValue(true);
  optSeries0.SetValue(true);
  chk100Pct.SetEnabled(false);
  WireControls();
  Comment.Wire(Buttons.cmdNext);
  WireLayout(Buttons, true);
}

void frmPSLayoutABC::WireControls() {
  cboCategories.Click = EventProcedure([this] { Axes.FillLabelAxis(cboCategories.Text()); });
  cboValues.Click = EventProcedure([this] {
    if (cboValues.ListIndex() >= 0) Axes.FillValueAxis(cboValues.Text());
    SetControlStates(Trigger::kValues);
  });
  for (auto* oOption : {&optCategories1, &optCategories2}) {
    oOption->Click = EventProcedure([this] { SetControlStates(Trigger::kCategories); });
  }
  for (auto* oOption : {&optSeries0, &optSeries1, &optSeries2}) {
    oOption->Click = EventProcedure([this] { SetControlStates(Trigger::kSeries); });
  }
  chk3D.Click = chk100Pct.Click = EventProcedure([this] { ShowChartPicture(); });
  chkStacked.Click = EventProcedure([this] {
    chk100Pct.SetEnabled(IsChecked(chkStacked));
    if (!IsChecked(chkStacked)) chk100Pct.SetValue(forms::CheckBox::kUnchecked);
    ShowChartPicture();
  });
}

std::int32_t frmPSLayoutABC::HelpTopic() const { return TextsOfType().lHelpTopic; }

void frmPSLayoutABC::FillPage() {
  SetFrameCaptions();
  LoadColumnNames();
  FillCategoryControls();
  FillSeriesControls();
  FillValueControl();
  NumberFormat.FillNumberFormats();
  NumberFormat.ShowNumberExample();
  SetControlStates(RestoreChartSelections() ? Trigger::kRestored : Trigger::kNew);
}

void frmPSLayoutABC::SetFrameCaptions() {
  const TypeTexts& oTexts = TextsOfType();
  Frame2.SetCaption(oTexts.sCategoriesCaption);
  Frame4.SetCaption(oTexts.sSizeCaption);
  Frame5.SetCaption(oTexts.sLabelsCaption);
  chkShowValues.SetCaption(oTexts.sShowValuesCaption);
  chkStacked.SetCaption(oTexts.sStackedCaption);
  for (auto [oOption, sWay] : {std::pair(&optCategories1, ", by rows"),
                               {&optCategories2, ", by columns"},
                               {&optSeries1, ", by rows"},
                               {&optSeries2, ", by columns"}}) {
    oOption->SetAccessibleName(oOption->Container()->AccessibleName() + sWay);
  }
  Axes.bHorizontalIsLabel = sChartType != "bar";
}

void frmPSLayoutABC::FillCategoryControls() {
  FillList(cboCategories, colLabelColumns);
  AddItems(lstCategories, colNumberColumns);
  Axes.FillLabelAxis(cboCategories.Text());
}

void frmPSLayoutABC::FillSeriesControls() {
  FillList(cboSeries, colLabelColumns);
  AddItems(lstSeries, colNumberColumns);
}

void frmPSLayoutABC::FillValueControl() { FillList(cboValues, colNumberColumns); }

void frmPSLayoutABC::SetControlStates(Trigger lTrigger) {
  ChooseFittingOptions(lTrigger);
  SetValueState();
  SetCategoryStates();
  SetSeriesStates();
  if (optSeries0.Value()) {
    // Without colours there is nothing to stack. The Click event of this box also updates chk100Pct.
    chkStacked.SetValue(forms::CheckBox::kUnchecked);
    chkStacked.SetEnabled(false);
  } else {
    chkStacked.SetEnabled(true);
  }
  ShowChartPicture();
}

void frmPSLayoutABC::ChooseFittingOptions(Trigger lTrigger) {
  const bool bOneNumber = colNumberColumns.size() < 2;
  if (lTrigger == Trigger::kNew && colLabelColumns.size() < 2 && bOneNumber) optSeries1.SetEnabled(false);
  if (lTrigger == Trigger::kSeries && optSeries2.Value() && !optCategories1.Value()) {
    optCategories1.SetValue(true);
  }
  // With a single number column, a click on the values also deselects a label column.
  const bool bNoColors = (lTrigger == Trigger::kValues && bOneNumber) ||
                         (lTrigger == Trigger::kCategories && optCategories2.Value());
  if (bNoColors && !optSeries0.Value()) optSeries0.SetValue(true);
}

void frmPSLayoutABC::SetValueState() {
  if (ColumnsGiveSize()) {
    Axes.FillValueAxis("");
    // With a single number column, the Click event deselects the columns again, but the box stays disabled.
    cboValues.SetListIndex(-1);
    SetInputEnabled(cboValues, false);
  } else {
    SetInputEnabled(cboValues, true);
  }
}

void frmPSLayoutABC::SetCategoryStates() {
  if (optCategories2.Value()) {
    optSeries2.SetEnabled(false);
  } else if (optSeries2.Value()) {
    optCategories2.SetEnabled(false);
  } else {
    optCategories2.SetEnabled(true);
    optSeries2.SetEnabled(true);
  }
  if (optCategories1.Value()) {
    SetInputEnabled(cboCategories, true);
    SwitchOff(lstCategories);
  } else {
    SwitchOff(cboCategories);
    SetInputEnabled(lstCategories, true);
  }
}

void frmPSLayoutABC::SetSeriesStates() {
  if (optSeries1.Value()) {
    SetInputEnabled(cboSeries, true);
  } else {
    SwitchOff(cboSeries);
  }
  if (optSeries2.Value()) {
    SetInputEnabled(lstSeries, true);
  } else {
    SwitchOff(lstSeries);
  }
  Legend.Show(optSeries1.Value() || optSeries2.Value());
}

void frmPSLayoutABC::ShowChartPicture() {
  const int lCode = (IsChecked(chk3D) ? 1 : 0) + (IsChecked(chkStacked) ? 2 : 0) +
                    (IsChecked(chk100Pct) ? 4 : 0) + (optSeries1.Value() || optSeries2.Value() ? 8 : 0);
  std::string sName;
  for (const StylePicture& oPicture : kStylePictures) {
    if (oPicture.lCode == lCode) sName = PictureName(TextsOfType(), oPicture);
  }
  Pictures.Show(sName);
}

void frmPSLayoutABC::PrepareSelections() {
  NumberFormat.ShowNumberExample();
  const bool bNoColor =
      (optSeries1.Value() && cboSeries.ListIndex() < 0) || (optSeries2.Value() && lstSeries.SelCount() == 0);
  if (bNoColor) optSeries0.SetValue(true);
}

std::string frmPSLayoutABC::FirstFault() const {
  const TypeTexts& oTexts = TextsOfType();
  if ((optCategories1.Value() && cboCategories.ListIndex() < 0) ||
      (optCategories2.Value() && lstCategories.SelCount() == 0)) {
    return oTexts.sNoCategories;
  }
  if (!ColumnsGiveSize() && cboValues.ListIndex() < 0) return oTexts.sNoSize;
  if (optCategories1.Value() && optSeries1.Value() && cboCategories.ListIndex() == cboSeries.ListIndex()) {
    return oTexts.sSameEntry;
  }
  return NumberFormat.IsInvalid() ? kBadNumberFormat : "";
}

forms::Control* frmPSLayoutABC::FocusAfter(const std::string& sMessage) {
  if (sMessage == kNoHorizontal || sMessage == kNoVertical) {
    if (optCategories1.Value()) return &cboCategories;
    return optCategories2.Value() ? &lstCategories : nullptr;
  }
  if (sMessage == kSameHorizontal || sMessage == kSameVertical) return &cboCategories;
  if (sMessage == kBadNumberFormat) return &NumberFormat.cboMask;
  const bool bAboutSize = std::any_of(kTypes.begin(), kTypes.end(),
                                      [&](const TypeTexts& oTexts) { return sMessage == oTexts.sNoSize; });
  return bAboutSize ? &cboValues : nullptr;
}

bool frmPSLayoutABC::RestoreChartSelections() {
  bool bFound = false;
  ReportErrors("frmPSLayoutABC.RestoreChartSelections", [&] {
    const auto oChart = ChartElement();
    RestoreTitle();
    NumberFormat.Restore();
    for (const char* sPart :
         {"categories", "series", "values", "axes", "data-labels", "dynamic-attributes", "comment"}) {
      if (oChart.selectSingleNode(sPart)) bFound = true;
    }
    RestoreHeadings();
    SelectEntries(cboValues, ColumnsOf("values"));
    Axes.Restore();
    RestoreStyle();
    Comment.Restore();
  });
  return bFound;
}

void frmPSLayoutABC::RestoreHeadings() {
  if (const auto oCategories = ChartElement().selectSingleNode("categories")) {
    const bool bRows = GetAttributeText(oCategories, "headings-in") == "rows";
    (bRows ? optCategories1 : optCategories2).SetValue(true);
    const auto aColumns = ColumnsOf("categories");
    SelectEntries(cboCategories, aColumns);
    AddSelections(lstCategories, aColumns);
  }
  if (const auto oSeries = ChartElement().selectSingleNode("series")) {
    const std::string sHeadingsIn = GetAttributeText(oSeries, "headings-in");
    (sHeadingsIn == "rows" ? optSeries1 : sHeadingsIn == "columns" ? optSeries2 : optSeries0).SetValue(true);
    const auto aColumns = ColumnsOf("series");
    SelectEntries(cboSeries, aColumns);
    AddSelections(lstSeries, aColumns);
  }
}

void frmPSLayoutABC::RestoreStyle() {
  for (const auto& oLabel : ChartElement().selectNodes("data-labels[1]/data-label")) {
    if (GetAttributeText(oLabel, "show") == "values") chkShowValues.SetValue(forms::CheckBox::kChecked);
  }
  for (const auto& oAttribute : ChartElement().selectNodes("dynamic-attributes[1]/attribute")) {
    const std::string sSetting = GetAttributeText(oAttribute, "setting");
    if (sSetting == "3D") chk3D.SetValue(forms::CheckBox::kChecked);
    if (sSetting == "stacked") chkStacked.SetValue(forms::CheckBox::kChecked);
    if (sSetting == "100%") chk100Pct.SetValue(forms::CheckBox::kChecked);
  }
}

void frmPSLayoutABC::UpdateChartMetadata() {
  ReportErrors("frmPSLayoutABC.UpdateChartMetadata", [this] {
    RemoveChildren(
        {"categories", "series", "values", "axes", "data-labels", "dynamic-attributes", "comment"});
    UpdateTitle();
    NumberFormat.Update();
    AppendHeadings("categories", optCategories1.Value() ? "rows" : "columns",
                   optCategories1.Value() ? CurrentEntry(cboCategories) : SelectedTexts(lstCategories));
    if (optSeries1.Value()) {
      AppendHeadings("series", "rows", CurrentEntry(cboSeries));
    } else if (optSeries2.Value()) {
      AppendHeadings("series", "columns", SelectedTexts(lstSeries));
    } else {
      AppendHeadings("series", "none", {});
    }
    if (cboValues.ListIndex() >= 0) AppendColumns("values", {cboValues.Text()});
    Axes.Append();
    AppendDataLabels(IsChecked(chkShowValues) ? "values" : "");
    AppendSettings(
        "dynamic-attributes",
        {{"3D", IsChecked(chk3D)}, {"stacked", IsChecked(chkStacked)}, {"100%", IsChecked(chk100Pct)}});
    Comment.Append();
  });
}

}  // namespace plotsmith
