#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "pages/Page.h"

namespace plotsmith {

/// The last page: the name and the sheet of the chart. If its input is valid, it stores the definition and
/// puts an empty chart on the sheet.
class frmPSChartLocation final : public Page {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSChartLocation(Navigation& oNavigation);
  bool ValidSelections() override;

  /// The controls in tab order.
  ///@{
  forms::Frame Frame1{*this, "Frame1", nullptr, "Place the chart on"};
  forms::OptionButton optTargetSheet0{*this, "optTargetSheet", 0, &Frame1, "A new worksheet"};
  forms::TextBox txtSheet{*this, "txtSheet", &Frame1};
  forms::OptionButton optTargetSheet1{*this, "optTargetSheet", 1, &Frame1, "An existing worksheet"};
  forms::ComboBox cboSheet{*this, "cboSheet", &Frame1, forms::ComboStyle::kDropDownList};
  forms::Label lblName{*this, "lblName", &Frame1, "Chart Name"};
  forms::TextBox txtName{*this, "txtName", &Frame1};
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 8; }
  void UpdateForBack() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;
  /// Does nothing, unlike on other pages: a run ends by itself after its last page.
  void Form_Unload() override {}

 private:
  void PopulateControls();
  void FillSheets(const std::string& sChartSheet);
  std::string DefaultSheetName() const;
  void SetSheetControls();
  /// Returns the name of the selected sheet, which may not exist yet.
  std::string SheetName() const;
  /// Returns the message for the first invalid input, or an empty text.
  std::string FirstFault(const std::string& sName, const std::string& sSheet) const;
  /// Makes the new worksheet if it is selected, and activates the chart's sheet. Returns a message if the
  /// host refuses.
  std::string PrepareSheet(const std::string& sSheet) const;
  /// Checks the input, stores the definition and puts the empty chart on its sheet.
  bool PlaceChart();
  void UpdateChartMetadata(const std::string& sSheetName);

  bool bNewChart = false;  ///< Whether the chart has no object on a sheet yet.
};

}  // namespace plotsmith
