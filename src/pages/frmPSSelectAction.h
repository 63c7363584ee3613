#pragma once

#include <string>

#include "forms/Plain.h"
#include "forms/VSFlexGrid.h"
#include "pages/Page.h"

namespace plotsmith {

/// The first page in a workbook with charts: the action, and the chart for it.
class frmPSSelectAction final : public Page {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSSelectAction(Navigation& oNavigation);

  /// The controls in tab order.
  ///@{
  forms::Frame Frame2{*this, "Frame2", nullptr, "Charts in this Workbook"};
  forms::VSFlexGrid grdCharts{*this, "grdCharts", &Frame2, forms::MultiSelect::kExtended, 4, 1};
  forms::CommandButton cmdNew{*this, "cmdNew", nullptr, "&New..."};
  forms::CommandButton cmdModify{*this, "cmdModify", nullptr, "&Modify..."};
  forms::CommandButton cmdCopy{*this, "cmdCopy", nullptr, "Co&py..."};
  forms::CommandButton cmdDelete{*this, "cmdDelete", nullptr, "&Delete"};
  forms::CommandButton cmdGoToChart{*this, "cmdGoToChart", nullptr, "Go To &Chart"};
  forms::CommandButton cmdGoToTable{*this, "cmdGoToTable", nullptr, "Go To &Table"};
  forms::CommandButton cmdHelp{*this, "cmdHelp", nullptr, "&Help"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", nullptr, "Cancel"};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 1; }
  void Form_Activate() override {}

 private:
  void FillChartGrid();
  void AddChartRow(const std::string& sID, const std::string& sName, const std::string& sType,
                   const std::string& sChartSheet, const std::string& sTableSheet);
  void SelectCurrentChart();
  void UpdateButtons();
  void SelectionChanged();
  void cmdNew_Click();
  void cmdModify_Click();
  void cmdCopy_Click();
  void cmdDelete_Click();
  /// Activates the sheet that a column of the grid contains.
  void GoTo(std::int32_t lColumn);
};

}  // namespace plotsmith
