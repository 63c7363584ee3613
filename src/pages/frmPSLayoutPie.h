#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "pages/LayoutPage.h"

namespace plotsmith {

/// The layout of pie charts: a label column gives the slices, and a number column gives their sizes.
class frmPSLayoutPie final : public LayoutPage {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSLayoutPie(Navigation& oNavigation);

  /// The controls in tab order.
  ///@{
  forms::Frame Frame4{*this, "Frame4", nullptr, "2. Slice Size"};
  forms::ComboBox cboValues{*this, "cboValues", &Frame4, forms::ComboStyle::kDropDownList};
  forms::Frame Frame2{*this, "Frame2", nullptr, "3. A Slice Represents"};
  forms::ListBox lstCategories{*this, "lstCategories", &Frame2, forms::MultiSelect::kNone};
  forms::Image imgLegend{*this, "imgLegend", &Frame2};
  forms::Frame Frame5{*this, "Frame5", nullptr, "4. Slice Labels"};
  forms::OptionButton optDataLabels0{*this, "optDataLabels", 0, &Frame5, "Values"};
  forms::OptionButton optDataLabels1{*this, "optDataLabels", 1, &Frame5, "Percentages"};
  forms::OptionButton optDataLabels2{*this, "optDataLabels", 2, &Frame5, "Neither"};
  NumberFormatBox NumberFormat{*this, &Frame5, {"lblData", "cboNumberMask", "lblExample"}};
  forms::Frame Frame6{*this, "Frame6", nullptr, "5. Chart Style"};
  forms::CheckBox chk3D{*this, "chk3D", &Frame6, "3-D"};
  forms::CheckBox chkExploded{*this, "chkExploded", &Frame6, "Exploded Pie"};
  CommentBox Comment{*this, "6. Chart Comments"};
  PictureGroup Pictures;
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 6; }
  void PrepareSelections() override;
  std::string FirstFault() const override;
  void UpdateChartMetadata() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;

 private:
  void FillCategoryList();
  void FillValueControl();
  void ShowChartPicture();
  void RestoreChartSelections();
};

}  // namespace plotsmith
