#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "pages/Page.h"

namespace plotsmith {

/// The last page: the chart's name and its sheet. When its input is valid, the chart begins to exist: its
/// definition is stored, and an empty chart stands on the sheet.
class frmPSChartLocation final : public Page {
 public:
  explicit frmPSChartLocation(Navigation& oNavigation);
  bool ValidSelections() override;

  forms::Frame Frame1{*this, "Frame1", nullptr, "Place the chart on"};
  forms::OptionButton optTargetSheet0{*this, "optTargetSheet", 0, &Frame1, "A new worksheet"};
  forms::TextBox txtSheet{*this, "txtSheet", &Frame1};
  forms::OptionButton optTargetSheet1{*this, "optTargetSheet", 1, &Frame1, "An existing worksheet"};
  forms::ComboBox cboSheet{*this, "cboSheet", &Frame1, forms::ComboStyle::kDropDownList};
  forms::Label lblName{*this, "lblName", &Frame1, "Chart Name"};
  forms::TextBox txtName{*this, "txtName", &Frame1};
  WizardButtons Buttons{*this};

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 8; }
  void UpdateForBack() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;
  /// This page asks for no end of the run: the run ends by itself when its last page is gone.
  void Form_Unload() override {}

 private:
  void PopulateControls();
  void FillSheets(const std::string& sChartSheet);
  std::string DefaultSheetName() const;
  void SetSheetControls();
  /// The sheet that the page names, which may not be there yet.
  std::string SheetName() const;
  /// The message of the first rule that the page breaks, or an empty text.
  std::string FirstFault(const std::string& sName, const std::string& sSheet) const;
  /// Makes the new worksheet if one is asked for, and activates the chart's sheet. Answers a message where
  /// the host refuses.
  std::string PrepareSheet(const std::string& sSheet) const;
  /// Judges the input, stores the definition and puts the empty chart on its sheet.
  bool PlaceChart();
  void UpdateChartMetadata(const std::string& sSheetName);

  bool bNewChart = false;  ///< the chart has no object on a sheet yet
};

}  // namespace plotsmith
