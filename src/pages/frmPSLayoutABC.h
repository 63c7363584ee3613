#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "pages/LayoutPage.h"

namespace plotsmith {

/// The layout of area, bar and column charts. Categories and colours each come either from one label column,
/// whose rows contain the names, or from several number columns, whose headings are the names. Only one of
/// the two can use number columns.
class frmPSLayoutABC final : public LayoutPage {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSLayoutABC(Navigation& oNavigation);

  /// The controls in tab order.
  ///@{
  forms::Frame Frame2{*this, "Frame2", nullptr, "2. Vertical (Y-axis) Shows"};
  forms::OptionButton optCategories1{*this, "optCategories", 1, &Frame2, ""};
  forms::ComboBox cboCategories{*this, "cboCategories", &Frame2, forms::ComboStyle::kDropDownList};
  forms::OptionButton optCategories2{*this, "optCategories", 2, &Frame2, ""};
  forms::ListBox lstCategories{*this, "lstCategories", &Frame2, forms::MultiSelect::kExtended};
  forms::Frame Frame3{*this, "Frame3", nullptr, "3. A Color Represents"};
  forms::OptionButton optSeries0{*this, "optSeries", 0, &Frame3, "  Not Applicable"};
  forms::OptionButton optSeries1{*this, "optSeries", 1, &Frame3, ""};
  forms::ComboBox cboSeries{*this, "cboSeries", &Frame3, forms::ComboStyle::kDropDownList};
  forms::OptionButton optSeries2{*this, "optSeries", 2, &Frame3, ""};
  forms::ListBox lstSeries{*this, "lstSeries", &Frame3, forms::MultiSelect::kExtended};
  LegendPictures Legend{*this, &Frame3};
  forms::Frame Frame4{*this, "Frame4", nullptr, "4. [ABC magnitude]"};
  forms::ComboBox cboValues{*this, "cboValues", &Frame4, forms::ComboStyle::kDropDownList};
  forms::Frame Frame5{*this, "Frame5", nullptr, "5. [ABC] and Axis Labels"};
  forms::CheckBox chkShowValues{*this, "chkShowValues", &Frame5, "Show Values on [ABC]"};
  NumberFormatBox NumberFormat{*this, &Frame5, {"lblNumberMask", "cboDataLabelMask", "lblNumberExample"}};
  AxisBoxes Axes{*this, &Frame5};
  forms::Frame Frame6{*this, "Frame6", nullptr, "6. Chart Style"};
  forms::CheckBox chk3D{*this, "chk3D", &Frame6, "3-D"};
  forms::CheckBox chkStacked{*this, "chkStacked", &Frame6, "Stacked [ABC]"};
  forms::CheckBox chk100Pct{*this, "chk100Pct", &Frame6, "Stack to 100%"};
  CommentBox Comment{*this, "7. Chart Comments"};
  PictureGroup Pictures;
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override;
  void PrepareSelections() override;
  std::string FirstFault() const override;
  void UpdateChartMetadata() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;

 private:
  /// The reason for calling SetControlStates.
  enum class Trigger {
    kCategories = 0,  ///< A click on optCategories.
    kSeries = 2,      ///< A click on optSeries.
    kValues = 4,      ///< A click on cboValues.
    kRestored = 5,    ///< The page was loaded, and a definition was restored.
    kNew = 6,         ///< The page was loaded, and there was nothing to restore.
  };

  void WireControls();
  void SetFrameCaptions();
  void FillCategoryControls();
  void FillSeriesControls();
  void FillValueControl();
  void SetControlStates(Trigger lTrigger);
  void ChooseFittingOptions(Trigger lTrigger);
  void SetValueState();
  void SetCategoryStates();
  void SetSeriesStates();
  void ShowChartPicture();
  /// Returns true if the definition has any of the elements.
  bool RestoreChartSelections();
  void RestoreHeadings();
  void RestoreStyle();
  bool ColumnsGiveSize() const { return optCategories2.Value() || optSeries2.Value(); }
};

}  // namespace plotsmith
