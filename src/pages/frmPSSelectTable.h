#pragma once

#include <array>
#include <string>

#include "forms/Plain.h"
#include "forms/VSFlexGrid.h"
#include "pages/ControlGroups.h"
#include "pages/Page.h"

namespace plotsmith {

/// The page for the source table and the chart type.
class frmPSSelectTable final : public Page {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSSelectTable(Navigation& oNavigation);
  bool ValidSelections() override;

  /// The controls in tab order.
  ///@{
  forms::Frame fraTableList{*this, "fraTableList", nullptr, "Tables in this Workbook"};
  forms::VSFlexGrid grdTables{*this, "grdTables", &fraTableList, forms::MultiSelect::kNone, 1, 0};
  forms::Frame fraChartType{*this, "fraChartType", nullptr, "Chart Type"};
  std::array<forms::OptionButton, 6> optType{{{*this, "optType", 0, &fraChartType, "Bar"},
                                              {*this, "optType", 1, &fraChartType, "Column"},
                                              {*this, "optType", 2, &fraChartType, "Area"},
                                              {*this, "optType", 3, &fraChartType, "Pie"},
                                              {*this, "optType", 4, &fraChartType, "Bubble"},
                                              {*this, "optType", 5, &fraChartType, "Strategic Bucket"}}};
  PictureGroup Pictures{
      *this, &fraChartType, {"imgBar", "imgColumn", "imgArea", "imgPie", "imgBubble", "imgStrBuck"}};
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 2; }
  void UpdateForBack() override { UpdateChartMetadata(); }
  forms::Control* FocusAfter(const std::string& sMessage) override;

 private:
  void PlacePictures();
  void FillTableGrid();
  void AddTableRow(const std::string& sName, const std::string& sID);
  void UpdateChartTypes();
  /// Enables the types that the selected table allows.
  void EnableChartTypes();
  void CheckTableStillValid();
  /// Selects a chart type by the index of its option, from 0; -1 is "unknown".
  void SetChartType(std::int32_t iIndex);
  void UpdateChartMetadata();

  bool bTableUsable = false;  ///< Whether the selected table has a label column and a number column.
  std::string sTableName;     ///< The name of the table that was selected when the page was loaded.
};

}  // namespace plotsmith
