#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "pages/LayoutPage.h"

namespace plotsmith {

/// The layout of bubble charts. Two number columns give the position of a bubble, a third one gives its size,
/// one label column gives its colour, and another one gives its label.
class frmPSLayoutBubble final : public LayoutPage {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSLayoutBubble(Navigation& oNavigation);

  /// The controls in tab order.
  ///@{
  forms::Frame Frame2{*this, "Frame2", nullptr, "2. Vertical (Y-axis)"};
  forms::ListBox lstYValues{*this, "lstYValues", &Frame2, forms::MultiSelect::kNone};
  forms::Frame Frame4{*this, "Frame4", nullptr, "3. Horizontal (X-axis)"};
  forms::ComboBox cboXValues{*this, "cboXValues", &Frame4, forms::ComboStyle::kDropDownList};
  forms::Frame Frame3{*this, "Frame3", nullptr, "4. A Bubble Represents"};
  forms::ComboBox cboCategories{*this, "cboCategories", &Frame3, forms::ComboStyle::kDropDownList};
  forms::Frame Frame9{*this, "Frame9", nullptr, "5. Bubble Size"};
  forms::ComboBox cboSizes{*this, "cboSizes", &Frame9, forms::ComboStyle::kDropDownList};
  forms::CheckBox chkShowZeroBubbles{*this, "chkShowZeroBubbles", &Frame9, "Show zero and negative sizes"};
  forms::Frame Frame8{*this, "Frame8", nullptr, "6. Bubble Color"};
  forms::ComboBox cboSeries{*this, "cboSeries", &Frame8, forms::ComboStyle::kDropDownList};
  LegendPictures Legend{*this, &Frame8};
  forms::Frame Frame5{*this, "Frame5", nullptr, "7. Chart Labels"};
  AxisBoxes Axes{*this, &Frame5};
  forms::Frame Frame6{*this, "Frame6", nullptr, "8. Chart Style"};
  forms::CheckBox chk3D{*this, "chk3D", &Frame6, "3-D"};
  forms::CheckBox chkQuadrants{*this, "chkQuadrants", &Frame6, "Arrange chart into quadrants"};
  forms::CheckBox chkScaleXAxis{*this, "chkScaleXAxis", &Frame6, "Recalculate X-axis "};
  forms::CheckBox chkScaleYAxis{*this, "chkScaleYAxis", &Frame6, "Recalculate Y-axis"};
  CommentBox Comment{*this, "9. Chart Comments"};
  PictureGroup Pictures;
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 7; }
  std::string FirstFault() const override;
  void UpdateChartMetadata() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;

 private:
  void WireControls();
  void FillCategories();
  void FillColors();
  void FillYValues();
  void FillSizes();
  void FillXValues();
  void ShowChartPicture();
  void RestoreChartSelections();
  void RestoreStyle();
};

}  // namespace plotsmith
